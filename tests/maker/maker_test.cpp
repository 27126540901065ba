#include "maker/maker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>

#include "maker/batch.h"
#include "tests/solver/samples.h"

namespace tessel::maker {
namespace {

using solver::ConcealRule;

int GivensIn(const Puzzle& puzzle) {
  return kCellCount - static_cast<int>(std::ranges::count(puzzle.givens, 0));
}

std::vector<Recipe> Recipes() {
  std::vector<Recipe> recipes;
  for (const LayoutKind layout :
       {LayoutKind::kRandom, LayoutKind::kRotational, LayoutKind::kRegular}) {
    for (const ConcealRule conceal : {ConcealRule::kSingle, ConcealRule::kPairs}) {
      recipes.push_back({layout, conceal});
    }
  }
  return recipes;
}

TEST(Maker, PuzzlesHaveTheirSolutionAndNoOther) {
  for (const Recipe& recipe : Recipes()) {
    Maker maker(recipe);
    for (std::uint64_t index = 0; index < 50; ++index) {
      const Puzzle puzzle = maker.Make(1, index);
      solver::Solver solver(puzzle.layout);
      EXPECT_EQ(solver.Completions(puzzle.givens), std::vector{*puzzle.solution});
    }
  }
}

// TESSEL_MADE=20000 in the environment: so many puzzles.
std::uint64_t PuzzlesForTheSlowSolver() {
  const char* const told = std::getenv("TESSEL_MADE");
  return told == nullptr ? 60 : std::strtoull(told, nullptr, 10);
}

TEST(Maker, AnotherSolverFindsTheSameSolutionAlone) {
  std::vector<Maker> makers;
  for (const Recipe& recipe : Recipes()) makers.emplace_back(recipe);
  for (std::uint64_t index = 0; index < PuzzlesForTheSlowSolver(); ++index) {
    const Puzzle puzzle = makers[index % makers.size()].Make(2, index);
    oracle::IndependentSolver other(solver::OracleLayoutOf(puzzle.layout));
    ASSERT_EQ(other.CountSolutions(solver::OracleGridOf(puzzle.givens), 2), 1) << index;
    ASSERT_EQ(solver::GridOf(other.Solution()), puzzle.solution) << index;
  }
}

TEST(Maker, APuzzleDependsOnItsSeedAndIndexAlone) {
  for (const Recipe& recipe : Recipes()) {
    Maker forwards(recipe);
    Maker backwards(recipe);
    std::map<std::uint64_t, Puzzle> puzzles;
    for (std::uint64_t index = 0; index < 20; ++index) {
      puzzles.emplace(index, forwards.Make(7, index));
    }
    for (std::uint64_t index = 20; index-- > 0;) {
      EXPECT_EQ(backwards.Make(7, index), puzzles.at(index)) << index;
    }
    EXPECT_NE(forwards.Make(8, 0), puzzles.at(0));
  }
}

TEST(Maker, LayoutsAreOfTheKindAskedFor) {
  Maker rotational({LayoutKind::kRotational});
  const Layout layout = rotational.Make(1, 0).layout;
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(layout.CageOf(cell) + layout.CageOf(HalfTurnOf(cell)), 10);
  }
  Maker regular({LayoutKind::kRegular});
  EXPECT_EQ(regular.Make(1, 0).layout, Layout::Regular());
}

TEST(Maker, PairsAreGivenOrConcealedTogether) {
  Maker maker({LayoutKind::kRandom, ConcealRule::kPairs});
  const Puzzle puzzle = maker.Make(1, 0);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(puzzle.givens[cell] == 0, puzzle.givens[HalfTurnOf(cell)] == 0);
  }
}

TEST(Maker, GoesOnToFewerGivensOrStopsAtMore) {
  Maker usual({LayoutKind::kRandom});
  Maker more({LayoutKind::kRandom, ConcealRule::kSingle, 40});
  for (std::uint64_t index = 0; index < 20; ++index) {
    EXPECT_GE(GivensIn(usual.Make(1, index)), 24);
    EXPECT_EQ(GivensIn(more.Make(1, index)), 40);
  }
}

TEST(Maker, EveryGivenOfAMinimalPuzzleIsNeeded) {
  Maker maker({LayoutKind::kRandom, ConcealRule::kSingle, solver::kMinimalGivens});
  for (std::uint64_t index = 0; index < 20; ++index) {
    const Puzzle puzzle = maker.Make(1, index);
    solver::Solver solver(puzzle.layout);
    for (int cell = 0; cell < kCellCount; ++cell) {
      Grid without = puzzle.givens;
      if (std::exchange(without[cell], std::uint8_t{0}) == 0) continue;
      EXPECT_FALSE(solver.HasUniqueCompletion(without)) << index << ", cell " << cell;
    }
  }
}

TEST(BatchMaker, KeepsWhatTheWishAccepts) {
  Order order;
  order.graded = true;
  const auto all = BatchMaker(order).Make(0, 100);
  ASSERT_EQ(all.size(), 100u);
  order.wish.easiest = grade::Level::kModerate;
  order.wish.hardest = grade::Level::kTricky;
  order.wish.step = grade::StepKind::kPointing;
  const auto some = BatchMaker(order).Make(0, 100);
  std::vector<std::uint64_t> expected;
  for (const Made& made : all) {
    const grade::Grade& grade = *made.grade;
    const bool fits =
        grade.level == grade::Level::kModerate || grade.level == grade::Level::kTricky;
    if (fits && grade.StepsOf(grade::StepKind::kPointing) > 0) expected.push_back(made.index);
  }
  std::vector<std::uint64_t> found;
  for (const Made& made : some) found.push_back(made.index);
  EXPECT_EQ(found, expected);
  EXPECT_FALSE(found.empty());
}

TEST(BatchMaker, GradesOnlyWhereSomebodyLooks) {
  Order order;
  EXPECT_FALSE(BatchMaker(order).Make(0, 1).front().grade);
  order.wish.mostGivens = 81;
  EXPECT_FALSE(BatchMaker(order).Make(0, 1).front().grade);
}

TEST(Wish, AcceptsLevelsScoresAndStepsInItsRange) {
  grade::Grade grade;
  grade.Count(grade::StepKind::kPointing, 1);  // moderate, of score 50
  const auto accepts = [&](const Wish& wish) { return wish.Accepts(grade); };
  EXPECT_TRUE(accepts({.easiest = grade::Level::kModerate, .hardest = grade::Level::kModerate}));
  EXPECT_FALSE(accepts({.easiest = grade::Level::kTricky}));
  EXPECT_FALSE(accepts({.hardest = grade::Level::kEasy}));
  EXPECT_TRUE(accepts({.lowestScore = 50, .highestScore = 50}));
  EXPECT_FALSE(accepts({.lowestScore = 51}));
  EXPECT_FALSE(accepts({.highestScore = 49}));
  EXPECT_TRUE(accepts({.step = grade::StepKind::kPointing}));
  EXPECT_FALSE(accepts({.step = grade::StepKind::kClaiming}));
}

TEST(Wish, AcceptsAsManyGivensAsItSays) {
  Grid givens{};
  givens[0] = givens[40] = 1;
  EXPECT_TRUE((Wish{.mostGivens = 2}).AcceptsGivens(givens));
  EXPECT_FALSE((Wish{.mostGivens = 1}).AcceptsGivens(givens));
}

TEST(Wish, RefusesPuzzlesThatNeedMoreGivens) {
  Order order;
  order.recipe.givens = 20;
  order.wish.mostGivens = 20;
  for (const Made& made : BatchMaker(order).Make(0, 60)) EXPECT_LE(GivensIn(made.puzzle), 20);
}

}  // namespace
}  // namespace tessel::maker
