// The generator against the walk written out step by step.
#include <gtest/gtest.h>

#include "tests/layout/generator_rig.h"
#include "tests/layout/layout_checks.h"
#include "tests/oracle/search/literal_layout.h"

namespace tessel {
namespace {

using oracle::Layout;
using oracle::LiteralLayout;

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kSeeds = 200;
#else
constexpr std::uint64_t kSeeds = 4'000;
#endif

class LayoutOracle : public testing::TestWithParam<LiteralLayout::Mode> {
 protected:
  LayoutOracle() {
    rig.form.SetChecked(CheckBox::Rotational, GetParam() == LiteralLayout::Mode::kRotational);
  }
  // One layout from the seed, by both: the same cages after the same number of steps.
  void Compare(std::uint64_t seed) {
    rig.clock.nextSeed = seed;
    literalRandom.Seed(seed);
    rig.view.pumps = literal.steps = 0;
    rig.generator.BuildTesselPattern();
    const Layout expected = literal.BuildTesselPattern(GetParam());
    ASSERT_EQ(rig.state.CageOfCell, expected.cageOfCell) << "seed " << seed;
    ASSERT_EQ(rig.state.CageCells, expected.cageCells) << "seed " << seed;
    ASSERT_EQ(rig.view.pumps, literal.steps) << "seed " << seed;
  }

  SeededRandom random;
  GeneratorRig rig{random};
  SeededRandom literalRandom;
  LiteralLayout literal{literalRandom};
};

TEST_P(LayoutOracle, SameLayoutsAndSteps) {
  for (std::uint64_t seed = 0; seed < kSeeds; ++seed) {
    Compare(seed);
    if (HasFatalFailure()) return;
  }
  EXPECT_GT(literal.attempts, static_cast<long>(kSeeds));  // some attempts were abandoned
}

TEST_P(LayoutOracle, SameLayoutsAndStepsWhenLayoutsAreRefused) {
  rig.accept = [this] { return rig.state.CageOfCell[12] + rig.state.CageOfCell[60] == 10; };
  literal.accept = [](const Layout& layout) {
    return layout.cageOfCell[12] + layout.cageOfCell[60] == 10;
  };
  for (std::uint64_t seed = 0; seed < kSeeds / 40; ++seed) {
    Compare(seed);
    if (HasFatalFailure()) return;
  }
}

// A cage that starts in a pocket closed off by earlier cages and mirrors could never claim a cell.
TEST(LayoutOracleEndlessWalk, AttemptIsAbandonedAndNothingElseChanges) {
  for (const std::uint64_t seed : {35498, 195495, 223303, 228298, 268733}) {
    SeededRandom random;
    GeneratorRig rig(random, seed);
    rig.form.SetChecked(CheckBox::Rotational, true);
    rig.generator.BuildTesselPattern();

    SeededRandom literalRandom(seed);
    LiteralLayout literal(literalRandom);
    const Layout expected = literal.BuildTesselPattern(LiteralLayout::Mode::kRotational);
    EXPECT_EQ(literal.enclosed, 1);
    EXPECT_EQ(rig.state.CageOfCell, expected.cageOfCell);
    EXPECT_EQ(rig.view.pumps, literal.steps);
  }
}

INSTANTIATE_TEST_SUITE_P(Modes, LayoutOracle,
                         testing::Values(LiteralLayout::Mode::kRandom,
                                         LiteralLayout::Mode::kRotational),
                         [](const auto& mode) {
                           return mode.param == LiteralLayout::Mode::kRandom ? "Random"
                                                                             : "Rotational";
                         });

}  // namespace
}  // namespace tessel
