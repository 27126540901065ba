#include "search/random_restarts.h"

#include <gtest/gtest.h>

#include "tests/oracle/search/independent_solver.h"
#include "tests/oracle/search/samples.h"
#include "tests/search/search_rig.h"

namespace tessel {
namespace {

using oracle::IndependentSolver;
using oracle::LiteralLayout;
using oracle::SampleLayout;

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kSeeds = 9;
#else
constexpr std::uint64_t kSeeds = 300;
#endif

constexpr auto kRandom = LiteralLayout::Mode::kRandom;
constexpr auto kRotational = LiteralLayout::Mode::kRotational;
// Written out once more: which order a fill takes depends on it.
constexpr long kLimit = 500;
constexpr std::int64_t kPlenty = 10'000'000;

struct RandomRestartsTest : testing::Test {
  SearchRig rig{SampleLayout(1, kRandom)};
  RandomRestarts tries{rig.search, rig.random, rig.progress};
};

TEST_F(RandomRestartsTest, EndsWithTheFirstOrderWhoseSearchEndsWithinTheLimit) {
  for (std::uint64_t seed = 0; seed < kSeeds; ++seed) {
    const auto layout = SampleLayout(seed, seed % 2 == 0 ? kRandom : kRotational);
    if (IndependentSolver(layout).HasFilling(1'000'000) != true) continue;
    SeededRandom random(seed);
    const auto expected = oracle::TryOrders(layout, random, kLimit, 100'000);
    ASSERT_TRUE(expected.solution) << seed;

    rig.Use(layout);
    rig.random.Seed(seed);
    rig.view.pumps = 0;
    const auto before = rig.search.Iterations();
    ASSERT_EQ(tries.Run(kPlenty), RandomRestarts::Result::kFilled) << seed;
    ASSERT_EQ(tries.Order(), expected.order) << seed;
    ASSERT_EQ(rig.Top().Digit, expected.solution) << seed;
    ASSERT_EQ(rig.view.pumps, expected.pumps) << seed;
    ASSERT_EQ(rig.search.Iterations() - before, expected.iterations) << seed;
  }
}

TEST_F(RandomRestartsTest, StopEndsItWithinOneIteration) {
  rig.view.onPump = [&](long pump) { rig.state.StopRequested = pump == 25; };
  EXPECT_EQ(tries.Run(kPlenty), RandomRestarts::Result::kStopped);
  EXPECT_EQ(rig.view.pumps, 25);
}

TEST_F(RandomRestartsTest, GivesUpWhenTheIterationsAllowedAreUsedUp) {
  rig.Use(SampleLayout(9, kRandom));  // has no filling
  EXPECT_EQ(tries.Run(20'000), RandomRestarts::Result::kGivenUp);
  EXPECT_GE(rig.search.Iterations(), 20'000);
  EXPECT_LE(rig.search.Iterations(), 20'000 + kRestartCutoff);
}

// The search itself: a board that cannot be filled is exhausted, whatever the driver.
TEST_F(RandomRestartsTest, SearchWithoutASolutionIsExhausted) {
  struct : SearchDriver {
    bool BeforeIteration() override { return true; }
    bool ContinueAfterSolution() override { return false; }
  } driver;
  SeededRandom random(2);
  rig.search.StartEmpty(oracle::DrawOrder(random));
  for (int cell = 0; cell < 4; ++cell) rig.Top().Candidates[cell] = 0b111;  // of one row
  EXPECT_EQ(rig.search.Run(driver), SearchResult::kExhausted);
  EXPECT_EQ(rig.probe.Depth(), 0u);
}

}  // namespace
}  // namespace tessel
