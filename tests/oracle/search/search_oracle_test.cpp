// The oracles are measures, so they are held against each other and against boards worked out by
// hand before anything is held against them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "tests/oracle/search/independent_solver.h"
#include "tests/oracle/search/literal_conceal.h"
#include "tests/oracle/search/samples.h"

namespace tessel::oracle {
namespace {

using ::testing::Optional;

constexpr auto kRandom = LiteralLayout::Mode::kRandom;
constexpr auto kRotational = LiteralLayout::Mode::kRotational;

// The givens force an empty cell's last candidate away by singles alone; there is no completion.
constexpr char kEmptiedBySingles[] =
    "006000000000000000000000000000800000000000000000000000700091205418000000000005080";

Grid SolvedRegular() {
  Grid grid{};
  for (int cell = 0; cell < 81; ++cell) {
    const int row = cell / 9;
    grid[cell] = static_cast<std::int16_t>((row % 3 * 3 + row / 3 + cell % 9) % 9 + 1);
  }
  return grid;
}

Layout Rows() {
  Grid cages{};
  for (int cell = 0; cell < 81; ++cell) cages[cell] = static_cast<std::int16_t>(cell / 9 + 1);
  return LayoutOf(cages);
}

TEST(IndependentSolver, CountsTheSwapsOfADeadlyPattern) {
  IndependentSolver solver(RegularLayout());
  Grid grid = SolvedRegular();
  EXPECT_TRUE(IsFilling(RegularLayout(), grid));
  EXPECT_THAT(solver.CountSolutions(grid, 100), Optional(1));
  // 1 and 2 in the first row, 2 and 1 beneath: two pairs of cells that may be exchanged.
  for (int cell = 0; cell < 81; ++cell) {
    if (grid[cell] == 1 || grid[cell] == 2) grid[cell] = 0;
  }
  EXPECT_THAT(solver.CountSolutions(grid, 100), Optional(2));
  EXPECT_THAT(solver.CountSolutions(grid, 1), Optional(1));
}

TEST(IndependentSolver, FindsNothingForClashesAndForeignNumbers) {
  IndependentSolver solver(RegularLayout());
  Grid grid{};
  grid[0] = grid[8] = 5;
  EXPECT_THAT(solver.CountSolutions(grid, 2), Optional(0));
  grid[8] = 10;
  EXPECT_THAT(solver.CountSolutions(grid, 2), Optional(0));
  grid[8] = -3;
  EXPECT_THAT(solver.CountSolutions(grid, 2), Optional(2));
  EXPECT_THAT(solver.CountSolutions(GridOf(kEmptiedBySingles), 2), Optional(0));
}

TEST(IndependentSolver, GivesUpAtTheBound) {
  IndependentSolver solver(RegularLayout());
  EXPECT_EQ(solver.CountSolutions(Grid{}, 2, 50), std::nullopt);
  EXPECT_THAT(solver.CountSolutions(Grid{}, 2, 5000), Optional(2));
}

TEST(IndependentSolver, ProvesThatALayoutHasNoFilling) {
  for (const std::uint64_t seed : {9, 198, 405, 508}) {
    IndependentSolver solver(SampleLayout(seed, kRandom));
    EXPECT_THAT(solver.HasFilling(1'000'000), Optional(false)) << seed;
  }
  IndependentSolver rows(Rows());
  EXPECT_THAT(rows.HasFilling(), Optional(true));
  EXPECT_TRUE(IsFilling(Rows(), rows.Solution()));
}

TEST(IndependentSolver, AgreesWithTheSearchOnWhatCanBeFilled) {
  for (std::uint64_t seed = 0; seed < 50; ++seed) {
    const Layout layout = SampleLayout(seed, seed % 2 == 0 ? kRandom : kRotational);
    IndependentSolver solver(layout);
    const auto solution = SampleSolution(layout, seed);
    EXPECT_THAT(solver.HasFilling(1'000'000), Optional(solution.has_value())) << seed;
    if (solution) {
      EXPECT_TRUE(IsFilling(layout, *solution)) << seed;
      EXPECT_TRUE(IsFilling(layout, solver.Solution())) << seed;
    }
  }
}

TEST(LiteralSearch, AgreesWithTheIndependentSolverOnUniqueness) {
  int unique = 0;
  for (std::uint64_t seed = 0; seed < 40; ++seed) {
    const Layout layout = seed % 4 == 0 ? RegularLayout() : SampleLayout(seed, kRandom);
    const auto solution = SampleSolution(layout, seed);
    if (!solution) continue;
    LiteralSearch search(layout);
    IndependentSolver solver(layout);
    SeededRandom random(seed);
    for (int empty = 20; empty < 60; empty += 4) {
      Grid givens = *solution;
      for (int i = 0; i < empty; ++i) givens[DrawIndex(random, 81)] = 0;
      if (empty % 8 == 0) givens[DrawIndex(random, 81)] = 4;
      const bool one = solver.CountSolutions(givens, 2) == 1;
      EXPECT_THAT(search.UniqueSolution(givens), Optional(one)) << seed << ' ' << empty;
      unique += one;
    }
  }
  EXPECT_GT(unique, 100);
}

TEST(LiteralSearch, BreaksDownWithoutTheRepairs) {
  using Repairs = LiteralSearch::Repairs;
  LiteralSearch search(RegularLayout());
  EXPECT_EQ(search.UniqueSolution(GridOf(kEmptiedBySingles), Repairs::kOff), std::nullopt);
  EXPECT_THAT(search.UniqueSolution(GridOf(kEmptiedBySingles)), Optional(false));
  Grid full{};
  full.fill(7);
  EXPECT_THAT(search.UniqueSolution(full, Repairs::kOff), Optional(true));
  EXPECT_THAT(search.UniqueSolution(full), Optional(false));
}

TEST(LiteralSearch, UndoGivesBackWhatWasRemoved) {
  const Layout layout = SampleLayout(3, kRandom);
  LiteralSearch search(layout);
  LiteralLevel& top = search.Levels[0];
  top.Candidates.fill(511);
  for (int cell = 0; cell < 81; ++cell) top.Order[cell] = static_cast<std::int16_t>(80 - cell);
  top.Digit[0] = 4;
  search.DLXRemoveCandidates(0, 4, 79);
  int peers = 0;
  for (int cell = 1; cell < 81; ++cell) peers += top.Candidates[cell] == 511 - 8;
  EXPECT_GE(peers, 16);
  EXPECT_LE(peers, 24);
  search.DLXUndo();
  EXPECT_EQ(top.UndoCount, 0);
  EXPECT_EQ(top.Digit[0], 0);
  EXPECT_THAT(top.Candidates, ::testing::Each(511));
}

TEST(LiteralSearch, EndsAtTheLimitOrWhenStopped) {
  const Layout layout = SampleLayout(0, kRandom);
  SeededRandom random(1);
  const TryOutResult found = TryOrders(layout, random, 500, 1000);
  ASSERT_TRUE(found.solution);

  LiteralSearch search(layout);
  EXPECT_EQ(search.GenerateTessel(found.order), LiteralSearch::End::kSolved);
  const long needed = search.pumps;
  EXPECT_EQ(search.GenerateTessel(found.order, needed), LiteralSearch::End::kSolved);
  EXPECT_EQ(search.GenerateTessel(found.order, needed - 1), LiteralSearch::End::kLimit);
  search.onPump = [&, left = 5]() mutable { search.StopRequested = --left == 0; };
  const long pumps = search.pumps;
  EXPECT_EQ(search.GenerateTessel(found.order), LiteralSearch::End::kStopped);
  EXPECT_EQ(search.pumps - pumps, 5);
  EXPECT_FALSE(search.StopRequested);
}

TEST(LiteralLayout, OpenFieldTellsRegionsApart) {
  SeededRandom random;
  LiteralLayout saw(random);
  const auto opens = [&](std::string_view cages, int cellsToCover) {
    saw.CageOfCell = GridOf(cages);
    const Grid before = saw.CageOfCell;
    const bool result = saw.OpenField(cellsToCover, 1, 0);
    EXPECT_EQ(saw.CageOfCell, before);
    return result;
  };
  EXPECT_TRUE(opens("11111111.", 1));           // one region of 73
  EXPECT_TRUE(opens(".........111111111", 0));  // 9 and 63
  // The corner's two cells and 70, 71, 72 others.
  EXPECT_FALSE(opens("..1......111......1........1........1........1........1", 0));
  EXPECT_FALSE(opens("..1......111......1........1........1........1", 1));
  EXPECT_TRUE(opens("..1......111......1........1........1", 2));
  // Three regions, whatever their sizes.
  EXPECT_FALSE(opens(".1.....1.11.....11", 3));
}

TEST(LiteralConceal, LeavesPuzzlesWithOneSolutionThatCannotLoseAnotherGiven) {
  for (std::uint64_t seed = 0; seed < 6; ++seed) {
    const Layout layout = SampleLayout(seed, seed % 2 == 0 ? kRandom : kRotational);
    const Grid solution = SampleSolution(layout, seed).value();
    SeededRandom random(seed);
    LiteralConceal conceal(layout, random);
    Grid puzzle = conceal.ConcealCells2ValidTessel(solution, LiteralConceal::Mode::kSingle).value();
    IndependentSolver solver(layout);
    EXPECT_THAT(solver.CountSolutions(puzzle, 2), Optional(1));
    EXPECT_EQ(solver.Solution(), solution);
    if (std::count(puzzle.begin(), puzzle.end(), 0) == 57) continue;
    for (std::int16_t& given : puzzle) {
      if (given == 0) continue;
      const std::int16_t kept = std::exchange(given, std::int16_t{0});
      EXPECT_THAT(solver.CountSolutions(puzzle, 2), Optional(2));
      given = kept;
    }
  }
}

}  // namespace
}  // namespace tessel::oracle
