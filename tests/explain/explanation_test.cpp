#include "explain/explanation.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/grade/made_puzzles.h"

namespace tessel::explain {
namespace {

// TESSEL_EXPLAINED=2000 in the environment: so many puzzles.
std::uint64_t Puzzles() {
  const char* const told = std::getenv("TESSEL_EXPLAINED");
  return told == nullptr ? 60 : std::strtoull(told, nullptr, 10);
}

void ExpectTrue(const grade::Step& step, const Grid& solution) {
  EXPECT_NE(step.placement.has_value(), !step.removals.empty());
  if (step.placement) {
    EXPECT_EQ(solution[step.placement->cell], step.placement->digit);
  }
  for (const auto& [cell, digits] : step.removals) EXPECT_FALSE(Holds(digits, solution[cell]));
}

// Every step changes the board, so that the next one stands on another.
void ExpectReplayed(const Explanation& explanation) {
  grade::CandidateGrid position = explanation.Start();
  for (std::size_t k = 0; k < explanation.steps.size(); ++k) {
    const auto& [step, before] = explanation.steps[k];
    EXPECT_EQ(position, before);
    position = grade::After(explanation.layout, position, step);
    EXPECT_NE(position, before);
    EXPECT_EQ(position, explanation.After(k));
  }
}

void ExpectEnd(const Explanation& explanation, const Grid& solution) {
  if (explanation.end.Solved()) {
    EXPECT_EQ(explanation.end.digits, solution);
    return;
  }
  for (const grade::StepKindFacts& facts : grade::kStepKinds) {
    EXPECT_TRUE(grade::StepsOf(facts.kind, explanation.layout, explanation.end).empty());
  }
}

TEST(Explanation, IsTrueAndLeadsFromTheGivensToTheSolution) {
  grade::PuzzleMaker maker;
  std::uint64_t solved = 0;
  std::uint64_t unlikeTheGrade = 0;
  for (std::uint64_t seed = 0; seed < Puzzles(); ++seed) {
    const Puzzle puzzle = maker.MakeAnyKind(seed);
    const Explanation explanation = Explain(puzzle);
    for (const Taken& taken : explanation.steps) ExpectTrue(taken.step, *puzzle.solution);
    ExpectReplayed(explanation);
    ExpectEnd(explanation, *puzzle.solution);
    ASSERT_FALSE(HasFailure()) << "seed " << seed;
    solved += explanation.end.Solved() ? 1 : 0;
    const grade::Grade grade = grade::GradeOf(puzzle.layout, puzzle.givens);
    unlikeTheGrade += explanation.end.Solved() == grade.stuck.has_value() ? 1 : 0;
  }
  EXPECT_GT(solved, Puzzles() / 2);
  EXPECT_EQ(unlikeTheGrade, 0U);
}

TEST(Explanation, GoesOnFromAPosition) {
  const Puzzle puzzle = grade::PuzzleMaker().MakeAnyKind(4);
  const Explanation whole = Explain(puzzle);
  const std::size_t half = whole.steps.size() / 2;
  const Explanation rest = Explain(puzzle, whole.After(half));
  EXPECT_EQ(rest.steps.size(), whole.steps.size() - half - 1);
  EXPECT_EQ(rest.end, whole.end);
}

TEST(Explanation, OfASolvedBoardHasNoSteps) {
  Puzzle puzzle = grade::PuzzleMaker().MakeAnyKind(4);
  puzzle.givens = *puzzle.solution;
  EXPECT_TRUE(Explain(puzzle).steps.empty());
  EXPECT_TRUE(Explain(puzzle).end.Solved());
}

}  // namespace
}  // namespace tessel::explain
