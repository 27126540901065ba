// What the board shows while it is sawn.
#include <gtest/gtest.h>

#include "tests/layout/generator_rig.h"
#include "tests/layout/layout_checks.h"

namespace tessel {
namespace {

int OpaqueCells(const Form& form) {
  int opaque = 0;
  for (int cell = 0; cell < kCellCount; ++cell) opaque += form.Cell(cell).opaque;
  return opaque;
}

// Whether the cell looks as it must: painted in its cage's colour, or not painted.
bool Shows(const GeneratorRig& rig, int cell, bool painted) {
  const DisplayedCell& look = rig.form.Cell(cell);
  if (!painted) return !look.opaque;
  return look.opaque && look.background == kCageColours[rig.state.CageOfCell[cell] - 1];
}

TEST(SawProgress, UntickedNothingIsPaintedBeforeTheEnd) {
  SeededRandom random;
  GeneratorRig rig(random, 2);
  for (int cell = 0; cell < kCellCount; ++cell) rig.form.SetCellOpaque(cell, true);
  rig.view.onPump = [&](long) { ASSERT_EQ(OpaqueCells(rig.form), 0); };
  rig.generator.BuildTesselPattern();
  EXPECT_TRUE(IsPaintedInCageColours(rig.state, rig.form));
}

TEST(SawProgress, TickedEveryCellIsPaintedAsSoonAsItIsClaimed) {
  SeededRandom random;
  GeneratorRig rig(random, 2);
  rig.form.SetChecked(CheckBox::CheckVisualize, true);
  rig.view.onPump = [&](long) {
    for (int cell = 0; cell < kCellCount; ++cell) {
      ASSERT_TRUE(Shows(rig, cell, rig.state.CageOfCell[cell] != 0)) << cell;
    }
  };
  rig.generator.BuildTesselPattern();
  EXPECT_TRUE(IsPaintedInCageColours(rig.state, rig.form));
}

TEST(SawProgress, CentreCageOfARotationalLayoutIsNotPaintedWhileItGrows) {
  SeededRandom random;
  GeneratorRig rig(random, 2);
  rig.form.SetChecked(CheckBox::CheckVisualize, true);
  rig.form.SetChecked(CheckBox::Rotational, true);
  int centreSteps = 0;
  rig.view.onPump = [&](long) {
    const bool centre = rig.state.CageOfCell[kCentreCell] == 5;
    centreSteps += centre;
    for (int cell = 0; cell < kCellCount; ++cell) {
      const int cage = rig.state.CageOfCell[cell];
      ASSERT_TRUE(Shows(rig, cell, cage != 0 && cage != 5)) << cell;
    }
  };
  rig.generator.BuildTesselPattern();
  EXPECT_GT(centreSteps, 0);
  EXPECT_TRUE(IsPaintedInCageColours(rig.state, rig.form));
}

TEST(SawProgress, BoxIsReadAtEveryClaimedCell) {
  ScriptedWalk walk;
  walk.GoNineTimes(kRight);
  GeneratorRig rig(walk);
  rig.view.onPump = [&](long pump) {
    // The cells 10..19 are claimed while the box is ticked.
    if (pump == 10) rig.form.SetChecked(CheckBox::CheckVisualize, true);
    if (pump == 19) rig.form.SetChecked(CheckBox::CheckVisualize, false);
    if (pump == 40) {
      EXPECT_EQ(OpaqueCells(rig.form), 10);
    }
  };
  rig.generator.BuildTesselPattern();
}

TEST(SawProgress, EveryAttemptStartsOnATransparentBoard) {
  ScriptedWalk walk;
  walk.GoNineTimes(kRight).GoNineTimes(kDown);
  GeneratorRig rig(walk);
  rig.form.SetChecked(CheckBox::CheckVisualize, true);
  rig.accept = [&] { return rig.judged == 2; };
  rig.view.onPump = [&](long pump) {
    if (pump == 73) {
      EXPECT_EQ(OpaqueCells(rig.form), 1);
    }
  };
  rig.generator.BuildTesselPattern();
}

}  // namespace
}  // namespace tessel
