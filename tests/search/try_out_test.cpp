#include "search/try_out.h"

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
constexpr std::array<std::uint64_t, 1> kUnfillable{9};
#else
constexpr std::uint64_t kSeeds = 300;
constexpr std::array<std::uint64_t, 5> kUnfillable{9, 198, 405, 508, 605};
#endif

constexpr auto kRandom = LiteralLayout::Mode::kRandom;
constexpr auto kRotational = LiteralLayout::Mode::kRotational;
// Written out once more: which order a fill takes depends on it.
constexpr long kLimit = 500;
constexpr std::int64_t kPlenty = 10'000'000;

struct TryOutTest : testing::Test {
  SearchRig rig{SampleLayout(1, kRandom)};
  TryOut tries{rig.state, rig.view, rig.random, rig.search};
};

TEST_F(TryOutTest, EndsWithTheFirstOrderWhoseSearchEndsWithinTheLimit) {
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
    ASSERT_EQ(tries.Run(kPlenty), TryOut::End::kFilled) << seed;
    ASSERT_EQ(tries.Order(), expected.order) << seed;
    ASSERT_EQ(rig.Top().Digit, expected.solution) << seed;
    ASSERT_EQ(rig.view.pumps, expected.pumps) << seed;
    ASSERT_EQ(rig.search.Iterations() - before, expected.iterations) << seed;
  }
}

TEST_F(TryOutTest, StopEndsItWithinOneIteration) {
  rig.view.onPump = [&](long pump) { rig.state.StopRequested = pump == 25; };
  EXPECT_EQ(tries.Run(kPlenty), TryOut::End::kStopped);
  EXPECT_EQ(rig.view.pumps, 25);
}

TEST_F(TryOutTest, GivesUpWhenTheIterationsAllowedAreUsedUp) {
  rig.Use(SampleLayout(9, kRandom));  // has no filling
  EXPECT_EQ(tries.Run(20'000), TryOut::End::kGivenUp);
  EXPECT_GE(rig.search.Iterations(), 20'000);
  EXPECT_LE(rig.search.Iterations(), 20'000 + kTryOutLimit);
}

// The search itself: a board that cannot be filled is exhausted, whatever the driver.
TEST_F(TryOutTest, SearchWithoutASolutionIsExhausted) {
  struct : SearchDriver {
    bool Proceed() override { return true; }
    bool ContinueAfterSolution() override { return false; }
  } driver;
  SeededRandom random(2);
  rig.search.StartEmpty(oracle::DrawOrder(random));
  for (int cell = 0; cell < 4; ++cell) rig.Top().Candidates[cell] = 0b111;  // of one row
  EXPECT_EQ(rig.search.Run(driver), SearchEnd::kExhausted);
  EXPECT_EQ(rig.search.Depth, 0);
}

void ExpectRightAnswer(SearchRig& rig, const oracle::Layout& layout) {
  rig.Use(layout);
  const bool admits = AdmitsFilling(rig.state, rig.view, rig.search);
  EXPECT_EQ(IndependentSolver(layout).HasFilling(2'000'000), admits);
}

TEST_F(TryOutTest, AdmitsFillingExactlyWhenThereIsOne) {
  for (std::uint64_t seed = 0; seed < kSeeds; ++seed) {
    SCOPED_TRACE(seed);
    ExpectRightAnswer(rig, SampleLayout(seed, kRandom));
    ExpectRightAnswer(rig, SampleLayout(seed, kRotational));
  }
}

TEST_F(TryOutTest, LayoutsWithoutAFillingAreRefused) {
  for (const std::uint64_t seed : kUnfillable) {
    SCOPED_TRACE(seed);
    ExpectRightAnswer(rig, SampleLayout(seed, kRandom));
    EXPECT_FALSE(AdmitsFilling(rig.state, rig.view, rig.search));
  }
}

TEST_F(TryOutTest, AdmitsFillingDependsOnTheLayoutAlone) {
  const float next = SeededRandom(77).Next();
  rig.random.Seed(77);
  EXPECT_TRUE(AdmitsFilling(rig.state, rig.view, rig.search));
  EXPECT_EQ(rig.random.Next(), next);
  const auto iterations = rig.search.Iterations();
  EXPECT_TRUE(AdmitsFilling(rig.state, rig.view, rig.search));
  EXPECT_EQ(rig.search.Iterations(), 2 * iterations);
}

}  // namespace
}  // namespace tessel
