#include <gtest/gtest.h>

#include "search/random_restarts.h"
#include "tests/oracle/search/independent_solver.h"
#include "tests/oracle/search/samples.h"
#include "tests/search/search_rig.h"

namespace tessel {
namespace {

using oracle::LiteralLayout;
using oracle::SampleLayout;

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kSeeds = 8;
constexpr std::uint64_t kOrders = 3;
#else
constexpr std::uint64_t kSeeds = 400;
constexpr std::uint64_t kOrders = 20;
#endif

constexpr auto kRandom = LiteralLayout::Mode::kRandom;

struct GenerateTessel : testing::Test {
  SearchRig rig{SampleLayout(1, kRandom)};
};

TEST_F(GenerateTessel, EveryGridKeepsTheRulesOfItsLayout) {
  for (std::uint64_t seed = 0; seed < kSeeds; ++seed) {
    const auto mode = seed % 2 == 0 ? kRandom : LiteralLayout::Mode::kRotational;
    const auto layout = seed % 5 == 0 ? oracle::RegularLayout() : SampleLayout(seed, mode);
    if (oracle::IndependentSolver(layout).HasFilling(1'000'000) != true) continue;
    rig.Use(layout);
    ASSERT_TRUE(rig.fill.GenerateTessel()) << seed;
    ASSERT_TRUE(IsFilling(layout, rig.state.WorkGrid)) << seed;
  }
}

TEST_F(GenerateTessel, SameGridAsTheSearchOfTheOrderItDrew) {
  for (std::uint64_t seed = 0; seed < kOrders; ++seed) {
    rig.clock.nextSeed = seed;
    ASSERT_TRUE(rig.fill.GenerateTessel());
    SeededRandom random(seed);
    const auto expected =
        oracle::TryOrders(SampleLayout(1, kRandom), random, kRestartCutoff, 100'000);
    EXPECT_EQ(rig.state.WorkGrid, expected.solution) << seed;
  }
}

TEST_F(GenerateTessel, TwoFillsOfALayoutDiffer) {
  ASSERT_TRUE(rig.fill.GenerateTessel());
  const CellDigits first = rig.state.WorkGrid;
  ASSERT_TRUE(rig.fill.GenerateTessel());
  EXPECT_NE(rig.state.WorkGrid, first);
  EXPECT_EQ(rig.clock.nextSeed, 3u);  // seeded from the clock each time
}

TEST_F(GenerateTessel, UntickedTheBoardChangesOnlyOnceAtTheEnd) {
  rig.view.onPump = [&](long) { ASSERT_EQ(rig.view.changes, 0); };
  ASSERT_TRUE(rig.fill.GenerateTessel());
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int digit = 1; digit <= 9; ++digit) {
      const Rgb hidden = kCageColours[rig.state.CageOfCell[cell] - 1];
      EXPECT_EQ(rig.form.Mark(cell, digit).colour,
                rig.state.WorkGrid[cell] == digit ? kBlack : hidden);
    }
  }
}

TEST_F(GenerateTessel, CaptionTellsTheTimeWithTwoDecimals) {
  ASSERT_TRUE(rig.fill.GenerateTessel());
  EXPECT_EQ(rig.form.Caption(), "Tessel Sudoku - Filled in 1.23 ms");
  rig.clock.counterStep = 40'000;
  ASSERT_TRUE(rig.fill.GenerateTessel());
  EXPECT_EQ(rig.form.Caption(), "Tessel Sudoku - Filled in 0.04 ms");
  EXPECT_EQ(rig.state.Stopwatch, nullptr);
}

TEST_F(GenerateTessel, StopLeavesGridCaptionAndStopwatchAsTheyStand) {
  rig.state.WorkGrid.fill(3);
  const CellDigits before = rig.state.WorkGrid;
  const std::string caption = rig.form.Caption();
  rig.view.onPump = [&](long pump) {
    if (pump == 10) rig.state.StopRequested = true;
  };
  EXPECT_FALSE(rig.fill.GenerateTessel());
  EXPECT_EQ(rig.view.pumps, 10);
  EXPECT_FALSE(rig.state.StopRequested);
  EXPECT_EQ(rig.state.WorkGrid, before);
  EXPECT_EQ(rig.form.Caption(), caption);
  EXPECT_NE(rig.state.Stopwatch, nullptr);
  EXPECT_EQ(rig.view.changes, 0);
}

TEST_F(GenerateTessel, CanBeStoppedAtAnyPump) {
  ASSERT_TRUE(rig.fill.GenerateTessel());
  const long needed = rig.view.pumps;
  for (long last = 1; last <= needed; last += 1 + needed / 50) {
    rig.clock.nextSeed = 1;
    rig.view.pumps = 0;
    rig.view.onPump = [&](long pump) {
      if (pump == last) rig.state.StopRequested = true;
    };
    ASSERT_FALSE(rig.fill.GenerateTessel());
    ASSERT_EQ(rig.view.pumps, last);
  }
}

// A fill that could never end is stopped like any other.
TEST_F(GenerateTessel, LayoutWithoutAFillingIsStoppedToo) {
  rig.Use(SampleLayout(9, kRandom));
  rig.view.onPump = [&](long pump) {
    if (pump == 50'000) rig.state.StopRequested = true;
  };
  EXPECT_FALSE(rig.fill.GenerateTessel());
  EXPECT_EQ(rig.view.pumps, 50'000);
}

}  // namespace
}  // namespace tessel
