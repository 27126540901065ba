// The completions of any givens, against another way to solve.
#include "tests/solver/solver_rig.h"

namespace tessel::solver {
namespace {

using oracle::IndependentSolver;
using oracle::IsFilling;

constexpr int kQuestionsALayout = 10;

class Completions : public OnEveryPath {
 protected:
  static Grid Solved() { return GridOf(*oracle::AnySolution(oracle::RegularLayout(), 1)); }

  Solver solver{Layout::Regular(), IsAvailable(GetParam()) ? GetParam() : Path::kPlain};
};
TESSEL_ON_EVERY_PATH(Completions);

TEST_P(Completions, FullGridIsItsOwn) {
  EXPECT_EQ(solver.Completions(Solved()), std::vector{Solved()});
}

TEST_P(Completions, FullGridThatBreaksTheRulesHasNone) {
  Grid grid = Solved();
  std::swap(grid[0], grid[1]);
  EXPECT_TRUE(solver.Completions(grid).empty());
  grid.fill(7);
  EXPECT_TRUE(solver.Completions(grid).empty());
}

TEST_P(Completions, GivensThatClashInAnyHouseHaveNone) {
  for (const int other : {8, 72, 20}) {  // row, column, cage of cell 0
    Grid givens{};
    givens[0] = givens[other] = 6;
    EXPECT_TRUE(solver.Completions(givens).empty()) << other;
  }
}

TEST_P(Completions, NumbersAbove9HaveNone) {
  for (const int number : {10, 16, 32, 255}) {
    Grid givens = Solved();
    givens[40] = static_cast<std::uint8_t>(number);
    EXPECT_TRUE(solver.Completions(givens).empty()) << number;
  }
}

TEST_P(Completions, TwoOfAnEmptyBoardAreTwoFillings) {
  const auto found = solver.Completions({});
  ASSERT_EQ(found.size(), 2U);
  EXPECT_NE(found[0], found[1]);
  for (const Grid& grid : found) {
    EXPECT_TRUE(IsFilling(oracle::RegularLayout(), OracleGridOf(grid)));
  }
  EXPECT_EQ(solver.Completions({}, 1), std::vector{found[0]});
}

// A search in fixed order takes seconds here, and would not end where there is no filling.
TEST_P(Completions, OfEmptyBoardsAreFoundByNewChoices) {
  for (const std::string_view cages :
       {"117122333112112233424542543434124753664279583656695588676676788177754588999999988",
        "111111112222222221333333333444444444555555555666666666777777777888888888999999999"}) {
    SCOPED_TRACE(cages);
    const Layout layout =
        Layout::FromCages(GridOf(oracle::GridOf(cages)), Layout::Shape::kAny).value();
    solver.Use(layout);
    const auto other = IndependentSolver(OracleLayoutOf(layout)).HasFilling(1'000'000);
    EXPECT_EQ(solver.Completions({}).empty(), other == false);
  }
}

// Four givens of a layout that has no filling: proved by choosing where choices have failed.
TEST_P(Completions, SparseGivensOfAnUnfillableLayoutAreRefused) {
  const auto cages = oracle::GridOf(
      "111223344111723334112223344152263344557766644557766566655277888995997888999997888");
  solver.Use(Layout::FromCages(GridOf(cages), Layout::Shape::kAny).value());
  const auto givens = oracle::GridOf("000000000000030000000000000200600000000000060000000000");
  EXPECT_TRUE(solver.Completions(GridOf(givens)).empty());
}

// Sparse givens of a solution, some of them exchanged for other digits.
TEST_P(Completions, OfSampledGivensAreTheOtherSolvers) {
  int asked = 0;
  int several = 0;
  for (std::uint64_t seed = 0; seed < kSampleLayouts; ++seed) {
    RandomStream random(seed);
    const Layout layout = Torn(SampleLayout(seed), static_cast<int>(seed % 4), random);
    const auto solution = oracle::AnySolution(OracleLayoutOf(layout), seed);
    if (!solution) continue;
    solver.Use(layout);
    IndependentSolver other(OracleLayoutOf(layout));
    for (int question = 0; question < kQuestionsALayout; ++question) {
      Grid givens{};
      for (auto left = 20 + random.Below(20); left > 0; --left) {
        const auto cell = random.Below(kCellCount);
        givens[cell] = static_cast<std::uint8_t>((*solution)[cell]);
      }
      for (auto wrong = random.Below(4); wrong > 1; --wrong) {
        givens[random.Below(kCellCount)] = static_cast<std::uint8_t>(1 + random.Below(9));
      }
      const auto expected = other.CountSolutions(OracleGridOf(givens), 2, 100'000);
      if (!expected) continue;
      const auto found = solver.Completions(givens);
      ASSERT_EQ(std::ssize(found), *expected) << seed << " " << question;
      for (const Grid& grid : found) {
        EXPECT_TRUE(IsFilling(OracleLayoutOf(layout), OracleGridOf(grid)));
        for (int cell = 0; cell < kCellCount; ++cell) {
          EXPECT_TRUE(givens[cell] == 0 || givens[cell] == grid[cell]);
        }
      }
      EXPECT_TRUE(found.size() < 2 || found[0] != found[1]);
      ++asked;
      several += found.size() > 1 ? 1 : 0;
    }
  }
  EXPECT_GT(asked, 7 * static_cast<int>(kSampleLayouts));
  EXPECT_GT(several, asked / 10);
}

}  // namespace
}  // namespace tessel::solver
