#include <gtest/gtest.h>

#include "tests/oracle/search/independent_solver.h"
#include "tests/oracle/search/samples.h"
#include "tests/search/search_rig.h"

namespace tessel {
namespace {

using oracle::GridOf;
using oracle::IndependentSolver;
using oracle::LiteralLayout;
using oracle::LiteralSearch;

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kGrids = 200;
#else
constexpr std::uint64_t kGrids = 2'000;
#endif

struct UniqueSolution : testing::Test {
  CellDigits Solved() const { return oracle::AnySolution(oracle::RegularLayout(), 1).value(); }
  // The answer, when it needs no search.
  bool AnswerWithoutSearch(const CellDigits& givens) {
    const bool answer = rig.UniqueSolution(givens);
    EXPECT_EQ(rig.view.pumps, 0);
    EXPECT_EQ(rig.search.Iterations(), 0);
    return answer;
  }

  SearchRig rig;
};

TEST_F(UniqueSolution, FullValidGridIsItsOwnCompletion) {
  EXPECT_TRUE(AnswerWithoutSearch(Solved()));
}

TEST_F(UniqueSolution, GivensThatForceEverythingNeedNoSearch) {
  CellDigits givens = Solved();
  for (int cell = 0; cell < 9; ++cell) givens[cell] = 0;
  EXPECT_TRUE(AnswerWithoutSearch(givens));
}

TEST_F(UniqueSolution, EmptyCellLeftWithoutACandidateIsRefused) {
  EXPECT_FALSE(AnswerWithoutSearch(GridOf("12345678.........9")));
}

// The givens leave a candidate everywhere, but the singles that they force do not.
TEST_F(UniqueSolution, SinglesThatEmptyAnotherCellAreRefused) {
  EXPECT_FALSE(AnswerWithoutSearch(
      GridOf("006000000000000000000000000000800000000000000000000000700091205418000000000005080")));
}

TEST_F(UniqueSolution, GivensThatClashInAnyHouseAreRefused) {
  for (const int other : {8, 72, 20}) {  // row, column, cage of cell 0
    CellDigits givens{};
    givens[0] = givens[other] = 6;
    EXPECT_FALSE(AnswerWithoutSearch(givens)) << other;
  }
}

TEST_F(UniqueSolution, FullGridThatBreaksTheRulesIsRefused) {
  CellDigits givens;
  givens.fill(7);
  EXPECT_FALSE(AnswerWithoutSearch(givens));
  givens = Solved();
  std::swap(givens[0], givens[1]);
  EXPECT_FALSE(AnswerWithoutSearch(givens));
}

TEST_F(UniqueSolution, NumbersAbove9AreRefused) {
  for (const int number : {10, 16, 17, 256, 511, 32767}) {
    CellDigits givens = Solved();
    givens[40] = static_cast<std::int16_t>(number);
    EXPECT_FALSE(AnswerWithoutSearch(givens)) << number;
  }
}

TEST_F(UniqueSolution, NumbersUpTo0AreEmptyCells) {
  for (const int number : {0, -1, -9, -32768}) {
    CellDigits givens = Solved();
    givens[40] = static_cast<std::int16_t>(number);
    EXPECT_TRUE(AnswerWithoutSearch(givens)) << number;
  }
}

TEST_F(UniqueSolution, SecondSolutionEndsTheSearch) {
  EXPECT_FALSE(rig.UniqueSolution(CellDigits{}));
  EXPECT_LT(rig.view.pumps, 1000);  // of more solutions than could ever be visited
}

TEST_F(UniqueSolution, LooksAtNothingAndChangesNothingButTheSearch) {
  rig.state.StopRequested = true;
  CellDigits givens{};
  givens[0] = -5;
  EXPECT_FALSE(rig.UniqueSolution(givens));
  EXPECT_TRUE(rig.state.StopRequested);
  EXPECT_EQ(rig.view.changes, 0);
  EXPECT_EQ(rig.view.beeps, 0);
  EXPECT_GT(rig.view.pumps, 0);
}

TEST_F(UniqueSolution, TakesTheSameStepsEveryTime) {
  const auto givens = GridOf("1...5...9.2...6...........7");
  rig.UniqueSolution(givens);
  const auto iterations = rig.search.Iterations();
  const long pumps = rig.view.pumps;
  rig.UniqueSolution(givens);
  EXPECT_EQ(rig.search.Iterations(), 2 * iterations);
  EXPECT_EQ(rig.view.pumps, 2 * pumps);
}

TEST_F(UniqueSolution, FollowsTheLayout) {
  CellDigits givens = Solved();
  EXPECT_TRUE(rig.UniqueSolution(givens));
  rig.Use(oracle::SampleLayout(1, LiteralLayout::Mode::kRandom));
  EXPECT_FALSE(rig.UniqueSolution(givens));
}

// A solution with cells emptied and, often, with numbers exchanged or out of range.
CellDigits AnyGivens(const CellDigits& solution, RandomSource& random) {
  CellDigits givens = solution;
  const int emptied = DrawIndex(random, 120);
  for (int i = 0; i < emptied; ++i) givens[DrawIndex(random, kCellCount)] = 0;
  const int changed = DrawIndex(random, 6) - 3;
  for (int i = 0; i < changed; ++i) {
    const int number =
        DrawIndex(random, 40) == 0 ? DrawIndex(random, 60) - 30 : 1 + DrawIndex(random, 9);
    givens[DrawIndex(random, kCellCount)] = static_cast<std::int16_t>(number);
  }
  return givens;
}

TEST_F(UniqueSolution, AnswersAsTwoOtherSearchesOnAnyGivens) {
  int unique = 0;
  int contradictory = 0;
  for (std::uint64_t number = 0; number < kGrids; ++number) {
    SeededRandom random(number);
    const auto layout =
        number % 3 == 0
            ? oracle::RegularLayout()
            : oracle::SampleLayout(number, number % 3 == 1 ? LiteralLayout::Mode::kRandom
                                                           : LiteralLayout::Mode::kRotational);
    const auto solution = oracle::AnySolution(layout, number);
    if (!solution) continue;
    rig.Use(layout);
    const CellDigits givens = AnyGivens(*solution, random);
    const int completions = IndependentSolver(layout).CountSolutions(givens, 2).value();
    LiteralSearch literal(layout);
    rig.view.pumps = 0;
    const auto before = rig.search.Iterations();

    ASSERT_EQ(rig.UniqueSolution(givens), completions == 1) << number;
    ASSERT_EQ(literal.UniqueSolution(givens), completions == 1) << number;
    ASSERT_EQ(rig.search.Iterations() - before, literal.iterations) << number;
    ASSERT_EQ(rig.view.pumps, literal.pumps) << number;
    unique += completions == 1;
    contradictory += completions == 0;
  }
  const int grids = static_cast<int>(kGrids);
  EXPECT_GT(unique, grids / 10);
  EXPECT_GT(contradictory, grids / 10);
  EXPECT_LT(unique + contradictory, grids * 9 / 10);
}

}  // namespace
}  // namespace tessel
