// Concealing against the passes written out, and its puzzles against another way to solve.
#include <gtest/gtest.h>

#include "tests/oracle/search/independent_solver.h"
#include "tests/oracle/search/literal_conceal.h"
#include "tests/oracle/search/samples.h"
#include "tests/search/search_rig.h"

namespace tessel {
namespace {

using oracle::Grid;
using oracle::IndependentSolver;
using oracle::Layout;
using oracle::LiteralConceal;
using oracle::LiteralLayout;

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kPuzzles = 30;
#else
constexpr std::uint64_t kPuzzles = 1'000;
#endif

class ConcealOracle : public testing::TestWithParam<LiteralConceal::Mode> {
 protected:
  ConcealOracle() {
    rig.form.SetChecked(CheckBox::ConcealRotational, GetParam() == LiteralConceal::Mode::kPairs);
  }
  Layout LayoutOf(std::uint64_t seed) const {
    if (seed % 3 == 0) return oracle::RegularLayout();
    return SampleLayout(
        seed, seed % 3 == 1 ? LiteralLayout::Mode::kRandom : LiteralLayout::Mode::kRotational);
  }
  // Conceals the solution, stopping both at the `stopAt`-th pump; whether it ran to its end.
  bool Compare(const Layout& layout, const Grid& solution, std::uint64_t seed, long stopAt) {
    SeededRandom random(seed);
    LiteralConceal literal(layout, random);
    literal.search.onPump = [&] {
      if (literal.search.pumps == stopAt) literal.StopRequested = true;
    };
    const auto expected = literal.ConcealCells2ValidTessel(solution, GetParam());

    rig.Use(layout);
    rig.clock.nextSeed = seed;
    rig.state.WorkGrid = solution;
    rig.state.Puzzle.fill(-1);
    rig.view.pumps = 0;
    rig.view.onPump = [&](long pump) {
      if (pump == stopAt) rig.state.StopRequested = true;
    };
    const auto before = rig.search.Iterations();
    EXPECT_EQ(rig.concealer.ConcealCells2ValidTessel(), expected.has_value());
    EXPECT_EQ(rig.view.pumps, literal.search.pumps);
    EXPECT_EQ(rig.search.Iterations() - before, literal.search.iterations);
    EXPECT_EQ(rig.state.WorkGrid, solution);
    EXPECT_FALSE(rig.state.StopRequested);
    if (expected) {
      EXPECT_EQ(rig.state.Puzzle, *expected);
    } else {
      EXPECT_EQ(rig.state.Puzzle[0], -1);
    }
    return expected.has_value();
  }

  SearchRig rig;
};

TEST_P(ConcealOracle, SamePuzzlesWithExactlyOneSolution) {
  for (std::uint64_t seed = 0; seed < kPuzzles; ++seed) {
    const Layout layout = LayoutOf(seed);
    const auto solution = oracle::AnySolution(layout, seed);
    if (!solution) continue;
    ASSERT_TRUE(Compare(layout, *solution, seed, -1)) << seed;
    IndependentSolver solver(layout);
    ASSERT_EQ(solver.CountSolutions(rig.state.Puzzle, 2), 1) << seed;
    ASSERT_EQ(solver.Solution(), *solution) << seed;
    ASSERT_FALSE(HasFailure()) << seed;
  }
}

TEST_P(ConcealOracle, SamePassesWhenStopped) {
  int stopped = 0;
  for (std::uint64_t seed = 0; seed < kPuzzles / 10; ++seed) {
    const Layout layout = LayoutOf(seed);
    const auto solution = oracle::AnySolution(layout, seed);
    if (!solution) continue;
    const long stopAt = 1 + static_cast<long>(seed) * 7 % 500;
    stopped += !Compare(layout, *solution, seed, stopAt);
    ASSERT_FALSE(HasFailure()) << seed;
  }
  EXPECT_GT(stopped, static_cast<int>(kPuzzles) / 20);
}

INSTANTIATE_TEST_SUITE_P(Modes, ConcealOracle,
                         testing::Values(LiteralConceal::Mode::kSingle,
                                         LiteralConceal::Mode::kPairs),
                         [](const auto& mode) {
                           return mode.param == LiteralConceal::Mode::kSingle ? "Single" : "Pairs";
                         });

}  // namespace
}  // namespace tessel
