#include "grade/grader.h"

#include <gtest/gtest.h>

#include "tests/grade/made_puzzles.h"

namespace tessel::grade {
namespace {

TEST(Grader, GradesAPuzzleWithOneSolution) {
  PuzzleMaker maker;
  Grader grader;
  for (std::uint64_t seed = 0; seed < 20; ++seed) {
    const Puzzle puzzle = maker.MakeAnyKind(seed);
    EXPECT_EQ(grader.GradeOf(puzzle), GradeOf(puzzle.layout, puzzle.givens));
  }
}

TEST(Grader, RefusesSeveralSolutions) {
  EXPECT_EQ(Grader().GradeOf(Layout::Regular(), Grid{}),
            tl::unexpected(GradeFault::kSeveralSolutions));
}

TEST(Grader, RefusesClashingGivens) {
  Grid givens{};
  givens[0] = 5;
  givens[8] = 5;
  EXPECT_EQ(Grader().GradeOf(Layout::Regular(), givens), tl::unexpected(GradeFault::kNoSolution));
}

TEST(Grader, RefusesAWrongGiven) {
  const Puzzle puzzle = PuzzleMaker().MakeAnyKind(3);
  Grid givens = *puzzle.solution;
  givens[0] = static_cast<std::uint8_t>(givens[0] % kSide + 1);
  EXPECT_EQ(Grader().GradeOf(puzzle.layout, givens), tl::unexpected(GradeFault::kNoSolution));
}

TEST(Grader, TellsWhyInWords) {
  EXPECT_EQ(MessageOf(GradeFault::kNoSolution), "it has no solution");
  EXPECT_EQ(MessageOf(GradeFault::kSeveralSolutions), "it has several solutions");
}

}  // namespace
}  // namespace tessel::grade
