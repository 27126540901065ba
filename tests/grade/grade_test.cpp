#include "grade/grade.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "grade/way.h"
#include "tests/grade/made_puzzles.h"
#include "tests/sample_count.h"

namespace tessel::grade {
namespace {

int OpenCells(const Grid& givens) {
  return static_cast<int>(std::ranges::count(givens, 0));
}

TEST(Grade, OfAFullBoardIsEasyWithoutAStep) {
  const Puzzle puzzle = PuzzleMaker().MakeAnyKind(1);
  const Grade grade = GradeOf(puzzle.layout, *puzzle.solution);
  EXPECT_EQ(grade, Grade{});
  EXPECT_FALSE(grade.hardest);
}

TEST(Grade, OfOneOpenCellIsANakedSingle) {
  const Puzzle puzzle = PuzzleMaker().MakeAnyKind(1);
  Grid givens = *puzzle.solution;
  givens[40] = 0;
  const Grade grade = GradeOf(puzzle.layout, givens);
  EXPECT_EQ(grade.hardest, StepKind::kNakedSingle);
  EXPECT_EQ(grade.score, 4);
  EXPECT_EQ(grade.fewest, 1);
}

TEST(Grade, CountKeepsTheHardestKindAndTheFewestSteps) {
  Grade grade;
  grade.Count(StepKind::kHiddenSingle, 3);
  grade.Count(StepKind::kNakedPair, 2);
  grade.Count(StepKind::kNakedSingle, 5);
  EXPECT_EQ(grade.level, Level::kTricky);
  EXPECT_EQ(grade.hardest, StepKind::kNakedPair);
  EXPECT_EQ(grade.score, 3 * 14 + 2 * 60 + 5 * 4);
  EXPECT_EQ(grade.rounds, 3);
  EXPECT_EQ(grade.fewest, 2);
  EXPECT_EQ(grade.StepsOf(StepKind::kHiddenSingle), 3);
}

TEST(Grade, FastAndPlainWayTellTheSame) {
  PuzzleMaker maker;
  for (std::uint64_t seed = 0; seed < Samples<std::uint64_t>(500); ++seed) {
    const Puzzle puzzle = maker.MakeAnyKind(seed);
    ASSERT_EQ(GradeOf(puzzle.layout, puzzle.givens), GradeOf(WayOf(puzzle.layout, puzzle.givens)))
        << "seed " << seed;
  }
}

TEST(Grade, SolvedPuzzlesTakeASingleForEveryOpenCell) {
  PuzzleMaker maker;
  for (std::uint64_t seed = 0; seed < 200; ++seed) {
    const Puzzle puzzle = maker.MakeAnyKind(seed);
    const Grade grade = GradeOf(puzzle.layout, puzzle.givens);
    if (grade.level == Level::kBeyond) continue;
    const int singles =
        grade.StepsOf(StepKind::kNakedSingle) + grade.StepsOf(StepKind::kHiddenSingle);
    ASSERT_EQ(singles, OpenCells(puzzle.givens)) << "seed " << seed;
    ASSERT_EQ(grade.level, FactsOf(*grade.hardest).level);
    ASSERT_FALSE(grade.stuck);
  }
}

TEST(Grade, BeyondTellsWhereItIsStuck) {
  PuzzleMaker maker;
  int stuck = 0;
  for (std::uint64_t seed = 0; seed < 40; ++seed) {
    const Puzzle puzzle =
        maker.Make(bench::LayoutKind::kRandom, solver::ConcealRule::kSingle, seed);
    const Grade grade = GradeOf(puzzle.layout, puzzle.givens);
    if (grade.level != Level::kBeyond) continue;
    ++stuck;
    ASSERT_FALSE(grade.stuck->Solved());
    for (const StepKindFacts& facts : kStepKinds) {
      ASSERT_TRUE(StepsOf(facts.kind, puzzle.layout, *grade.stuck).empty());
    }
  }
  EXPECT_GT(stuck, 0);
}

}  // namespace
}  // namespace tessel::grade
