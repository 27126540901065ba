#include <gtest/gtest.h>

#include <set>

#include "tests/layout/generator_rig.h"
#include "tests/layout/layout_checks.h"

namespace tessel {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kSeeds = 1'000;
#else
constexpr std::uint64_t kSeeds = 10'000;
#endif

// Cages appear in the order of their numbers when the board is read cell by cell: each starts at
// the lowest cell that those before it have left.
bool CagesStartAtTheLowestCellLeft(const GameState& state) {
  int cagesSeen = 0;
  for (const int cage : state.CageOfCell) {
    if (cage > cagesSeen + 1) return false;
    cagesSeen = std::max(cagesSeen, cage);
  }
  return true;
}

bool CageFourTouchesTheCentreOnPerpendicularSides(const GameState& state) {
  const auto inCageFour = [&](int cell) { return state.CageOfCell[cell] == 4; };
  return (inCageFour(31) || inCageFour(49)) && (inCageFour(39) || inCageFour(41));
}

TEST(LayoutValidity, RandomLayoutsAreNineConnectedCagesOfNine) {
  SeededRandom random;
  GeneratorRig rig(random);
  std::set<PerCell<std::int16_t>> layouts;
  for (std::uint64_t seed = 0; seed < kSeeds; ++seed) {
    rig.clock.nextSeed = seed;
    rig.generator.BuildTesselPattern();
    ASSERT_TRUE(IsLayout(rig.state)) << "seed " << seed;
    ASSERT_TRUE(CagesStartAtTheLowestCellLeft(rig.state)) << "seed " << seed;
    ASSERT_TRUE(IsPaintedInCageColours(rig.state, rig.form)) << "seed " << seed;
    layouts.insert(rig.state.CageOfCell);
  }
  EXPECT_EQ(layouts.size(), kSeeds);
  EXPECT_EQ(rig.view.beeps, static_cast<int>(kSeeds));
}

TEST(LayoutValidity, RotationalLayoutsMapOntoThemselvesUnderAHalfTurn) {
  SeededRandom random;
  GeneratorRig rig(random);
  rig.form.SetChecked(CheckBox::Rotational, true);
  std::set<PerCell<std::int16_t>> layouts;
  for (std::uint64_t seed = 0; seed < kSeeds; ++seed) {
    rig.clock.nextSeed = seed;
    rig.generator.BuildTesselPattern();
    ASSERT_TRUE(IsLayout(rig.state)) << "seed " << seed;
    ASSERT_TRUE(IsRotational(rig.state)) << "seed " << seed;
    ASSERT_EQ(rig.state.CageOfCell[kCentreCell], 5) << "seed " << seed;
    ASSERT_FALSE(CageFourTouchesTheCentreOnPerpendicularSides(rig.state)) << "seed " << seed;
    ASSERT_TRUE(IsPaintedInCageColours(rig.state, rig.form)) << "seed " << seed;
    layouts.insert(rig.state.CageOfCell);
  }
  EXPECT_GT(layouts.size(), kSeeds * 9 / 10);
  EXPECT_EQ(rig.view.beeps, static_cast<int>(kSeeds));
}

}  // namespace
}  // namespace tessel
