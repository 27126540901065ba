// Fillings of empty layouts.
#include "tests/solver/solver_rig.h"

namespace tessel::solver {
namespace {

using oracle::IndependentSolver;
using oracle::IsFilling;

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kLayouts = 30;
#else
constexpr std::uint64_t kLayouts = 300;
#endif
constexpr std::uint64_t kNodes = 20'000;

class FillLayout : public OnEveryPath {
 protected:
  Solver solver{Layout::Regular(), IsAvailable(GetParam()) ? GetParam() : Path::kPlain};
};
TESSEL_ON_EVERY_PATH(FillLayout);

TEST_P(FillLayout, FindsAFillingOrProvesThatThereIsNone) {
  for (std::uint64_t seed = 0; seed < kLayouts; ++seed) {
    const Layout layout = SampleLayout(seed);
    solver.Use(layout);
    RandomStream random(seed);
    const Filling filling = solver.Fill(random, kNodes);
    if (filling.answer == Answer::kYes) {
      EXPECT_TRUE(IsFilling(OracleLayoutOf(layout), OracleGridOf(filling.grid))) << seed;
      continue;
    }
    EXPECT_EQ(filling.answer, Answer::kNo) << seed;
    EXPECT_EQ(IndependentSolver(OracleLayoutOf(layout)).HasFilling(1'000'000), false) << seed;
  }
}

TEST_P(FillLayout, DependsOnTheSeedAlone) {
  Solver plain(Layout::Regular(), Path::kPlain);
  for (std::uint64_t seed = 0; seed < kLayouts / 10; ++seed) {
    solver.Use(SampleLayout(seed));
    plain.Use(SampleLayout(seed));
    RandomStream random(seed);
    RandomStream same(seed);
    const Filling filling = solver.Fill(random, kNodes);
    EXPECT_EQ(filling.grid, plain.Fill(same, kNodes).grid);
    EXPECT_EQ(random.Next(), same.Next());
    RandomStream other(seed + 1000);
    EXPECT_TRUE(filling.answer == Answer::kNo || filling.grid != solver.Fill(other, kNodes).grid);
  }
}

TEST_P(FillLayout, GivesUpAfterTheNodesAllowed) {
  solver.Use(SampleLayout(1));
  RandomStream random(1);
  const Filling filling = solver.Fill(random, 3);
  EXPECT_EQ(filling.answer, Answer::kUnknown);
  EXPECT_EQ(filling.nodes, 3U);
  EXPECT_EQ(filling.grid, Grid{});
}

TEST(CanBeFilled, SawnLayoutsWithoutAFillingAreRefused) {
  for (const std::uint64_t seed : {9U, 198U, 405U, 508U, 605U}) {
    const auto sawn = oracle::SampleLayout(seed, oracle::LiteralLayout::Mode::kRandom);
    EXPECT_FALSE(CanBeFilled(Layout::FromCages(GridOf(sawn.cageOfCell)).value())) << seed;
    EXPECT_EQ(IndependentSolver(sawn).HasFilling(1'000'000), false) << seed;
  }
}

TEST(CanBeFilled, IsSoExactlyWhenThereIsAFilling) {
  for (std::uint64_t seed = 0; seed < kLayouts; ++seed) {
    const Layout layout = SampleLayout(seed);
    const auto expected = IndependentSolver(OracleLayoutOf(layout)).HasFilling(1'000'000);
    EXPECT_EQ(CanBeFilled(layout), expected) << seed;
  }
}

// A layout used before leaves nothing behind that changes an answer.
TEST(SolverUse, ForgetsTheLayoutBefore) {
  Solver used(Layout::Regular());
  for (std::uint64_t seed = 0; seed < kLayouts; ++seed) {
    const Layout layout = SampleLayout(seed);
    used.Use(layout);
    const Filling fresh = Solver(layout).FillWithin(1000);
    const Filling filling = used.FillWithin(1000);
    EXPECT_EQ(filling.nodes, fresh.nodes) << seed;
    EXPECT_EQ(filling.grid, fresh.grid) << seed;
  }
}

}  // namespace
}  // namespace tessel::solver
