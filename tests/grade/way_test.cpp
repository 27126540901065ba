#include "grade/way.h"

#include <gtest/gtest.h>

#include "tests/grade/made_puzzles.h"
#include "tests/sample_count.h"

namespace tessel::grade {
namespace {

void ExpectTrue(const Step& step, const Grid& solution) {
  if (step.placement) {
    EXPECT_EQ(solution[step.placement->cell], step.placement->digit);
  }
  for (const Removal& removal : step.removals) {
    EXPECT_FALSE(Holds(removal.digits, solution[removal.cell]))
        << FactsOf(step.kind).name << " at cell " << removal.cell;
  }
}

void ExpectWorks(const Step& step, const CandidateGrid& before) {
  EXPECT_NE(step.placement.has_value(), !step.removals.empty());
  EXPECT_FALSE(step.cells.Empty());
  EXPECT_NE(step.digits, 0);
  for (const Removal& removal : step.removals) {
    EXPECT_NE(removal.digits, 0);
    EXPECT_EQ(Without(removal.digits, before.candidates[removal.cell]), 0);
  }
}

TEST(Way, EveryStepIsTrueInTheSolution) {
  PuzzleMaker maker;
  for (std::uint64_t seed = 0; seed < Samples<std::uint64_t>(500); ++seed) {
    const Puzzle puzzle = maker.MakeAnyKind(seed);
    for (const Round& round : WayOf(puzzle.layout, puzzle.givens).rounds) {
      for (const Step& step : round.steps) ExpectTrue(step, *puzzle.solution);
    }
    ASSERT_FALSE(HasFailure()) << "seed " << seed;
  }
}

TEST(Way, EveryStepChangesThePositionBeforeItsRound) {
  PuzzleMaker maker;
  for (std::uint64_t seed = 0; seed < 50; ++seed) {
    const Puzzle puzzle = maker.MakeAnyKind(seed);
    const Way way = WayOf(puzzle.layout, puzzle.givens);
    const CandidateGrid* before = &way.start;
    for (const Round& round : way.rounds) {
      for (const Step& step : round.steps) {
        EXPECT_EQ(step.kind, round.kind);
        ExpectWorks(step, *before);
      }
      before = &round.after;
    }
    ASSERT_FALSE(HasFailure()) << "seed " << seed;
  }
}

TEST(Way, EachRoundTakesTheEasiestKind) {
  const Puzzle puzzle = PuzzleMaker().MakeAnyKind(5);
  const Way way = WayOf(puzzle.layout, puzzle.givens);
  const CandidateGrid* before = &way.start;
  for (const Round& round : way.rounds) {
    for (const StepKindFacts& facts : kStepKinds) {
      if (facts.kind == round.kind) break;
      EXPECT_TRUE(StepsOf(facts.kind, puzzle.layout, *before).empty()) << facts.name;
    }
    before = &round.after;
  }
}

TEST(Way, EndsAtTheSolution) {
  PuzzleMaker maker;
  int solved = 0;
  for (std::uint64_t seed = 0; seed < 50; ++seed) {
    const Puzzle puzzle = maker.MakeAnyKind(seed);
    const Way way = WayOf(puzzle.layout, puzzle.givens);
    if (!way.End().Solved()) continue;
    ++solved;
    EXPECT_EQ(way.End().digits, *puzzle.solution);
  }
  EXPECT_GT(solved, 0);
}

TEST(Way, OfAFullBoardHasNoRounds) {
  const Puzzle puzzle = PuzzleMaker().MakeAnyKind(2);
  const Way way = WayOf(puzzle.layout, *puzzle.solution);
  EXPECT_TRUE(way.rounds.empty());
  EXPECT_EQ(way.End().digits, *puzzle.solution);
}

}  // namespace
}  // namespace tessel::grade
