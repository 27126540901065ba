#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/layout/generator_rig.h"
#include "tests/layout/layout_checks.h"

namespace tessel {
namespace {

PerCell<std::int16_t> RowsLayout() {
  PerCell<std::int16_t> cages{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    cages[cell] = static_cast<std::int16_t>(RowOf(cell) + 1);
  }
  return cages;
}
PerCell<std::int16_t> ColumnsLayout() {
  PerCell<std::int16_t> cages{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    cages[cell] = static_cast<std::int16_t>(ColumnOf(cell) + 1);
  }
  return cages;
}

// From cell 0 around the cells 9, 10, 11 and 18; the next step to the left would claim 18 and cut
// the other three off.
ScriptedWalk& GoAroundThePocket(ScriptedWalk& walk) {
  return walk.Go(kRight, 3).Go(kDown, 2).Go(kLeft, 2);
}
constexpr std::array kAroundThePocket{0, 1, 2, 3, 12, 21, 20, 19};

// The cells of cage 1 while the walk stood before its n-th step.
struct CageOneTrace {
  explicit CageOneTrace(GeneratorRig& rig) {
    rig.view.onPump = [this, &rig](long) {
      std::vector<int> cells;
      for (int cell = 0; cell < kCellCount; ++cell) {
        if (rig.state.CageOfCell[cell] == 1) cells.push_back(cell);
      }
      before.push_back(cells);
    };
  }
  const std::vector<int>& BeforeStep(long n) const {
    return before.at(static_cast<std::size_t>(n - 1));
  }
  std::vector<std::vector<int>> before;
};

std::vector<int> Sorted(std::vector<int> cells) {
  std::sort(cells.begin(), cells.end());
  return cells;
}
std::vector<int> PocketCells() {
  return Sorted({kAroundThePocket.begin(), kAroundThePocket.end()});
}

TEST(CageGenerator, FirstCageStartsAtCell0AndEveryOtherAtTheLowestUnclaimedCell) {
  ScriptedWalk walk;
  walk.GoNineTimes(kRight);
  GeneratorRig rig(walk);
  rig.generator.BuildTesselPattern();
  EXPECT_EQ(rig.state.CageOfCell, RowsLayout());
  EXPECT_TRUE(IsLayout(rig.state));
  EXPECT_TRUE(walk.IsOver());
  EXPECT_EQ(rig.view.pumps, 72);
}

TEST(CageGenerator, StepsOffTheBoardAreNeitherTakenNorCounted) {
  ScriptedWalk walk;
  walk.Go(kUp, 60).Go(kLeft, 60);      // from cell 0
  walk.Go(kDown, 8).Go(kDown, 7 * 8);  // columns 1 to 8
  walk.Go(kRight, 60).Go(kUp, 60);     // from cell 8
  walk.Go(kDown, 7).Go(kRight, 60).Go(kDown, 1);
  GeneratorRig rig(walk);
  rig.generator.BuildTesselPattern();
  EXPECT_EQ(rig.state.CageOfCell, ColumnsLayout());
  EXPECT_EQ(rig.view.pumps, walk.Length());

  ScriptedWalk rows;
  rows.Go(kRight, 8 * 8).Go(kDown, 60).Go(kRight, 4).Go(kDown, 60).Go(kRight, 4);
  GeneratorRig other(rows);
  other.generator.BuildTesselPattern();
  EXPECT_EQ(other.state.CageOfCell, RowsLayout());
  EXPECT_EQ(other.view.pumps, rows.Length());
}

TEST(CageGenerator, StepsWithinTheCageMoveTheWalkerAndAreNotCounted) {
  ScriptedWalk walk;
  walk.Go(kRight);
  for (int i = 0; i < 60; ++i) walk.Go(kLeft).Go(kRight);
  walk.Go(kRight, 7).Go(kRight, 8 * 8);
  GeneratorRig rig(walk);
  rig.generator.BuildTesselPattern();
  EXPECT_EQ(rig.state.CageOfCell, RowsLayout());
  EXPECT_EQ(rig.view.pumps, walk.Length());
}

TEST(CageGenerator, StepsIntoAnotherCageAreNotCounted) {
  ScriptedWalk walk;
  walk.Go(kRight, 8).Go(kUp, 60).Go(kRight, 7 * 8 + 4).Go(kUp, 60).Go(kRight, 4);
  GeneratorRig rig(walk);
  rig.generator.BuildTesselPattern();
  EXPECT_EQ(rig.state.CageOfCell, RowsLayout());
  EXPECT_EQ(rig.view.pumps, walk.Length());
}

TEST(CageGenerator, RefusedCellIsGivenBackAndTheWalkerStepsBack) {
  ScriptedWalk walk;
  GoAroundThePocket(walk).Go(kLeft).Go(kDown);
  GeneratorRig rig(walk);
  CageOneTrace trace(rig);
  rig.generator.BuildTesselPattern();
  EXPECT_EQ(trace.BeforeStep(8), PocketCells());
  EXPECT_EQ(trace.BeforeStep(9), PocketCells());
  std::vector<int> withTheCellBelow = PocketCells();
  withTheCellBelow.push_back(28);  // below 19, not below the refused 18
  EXPECT_EQ(trace.BeforeStep(10), withTheCellBelow);
}

TEST(CageGenerator, FiftyRefusalsAbandonTheAttempt) {
  ScriptedWalk walk;
  GoAroundThePocket(walk).Go(kLeft, 50).GoNineTimes(kRight);
  GeneratorRig rig(walk);
  CageOneTrace trace(rig);
  rig.generator.BuildTesselPattern();
  EXPECT_EQ(trace.BeforeStep(57), PocketCells());
  EXPECT_EQ(trace.BeforeStep(58), std::vector<int>{0});
  EXPECT_EQ(rig.state.CageOfCell, RowsLayout());
  EXPECT_EQ(rig.view.pumps, walk.Length());
}

TEST(CageGenerator, FortyNineRefusalsDoNot) {
  ScriptedWalk walk;
  GoAroundThePocket(walk).Go(kLeft, 49).Go(kDown);
  GeneratorRig rig(walk);
  CageOneTrace trace(rig);
  rig.generator.BuildTesselPattern();
  EXPECT_EQ(trace.BeforeStep(58).size(), 9u);
}

TEST(CageGenerator, FailuresAreCountedAnewInEveryAttempt) {
  ScriptedWalk walk;
  GoAroundThePocket(walk).Go(kLeft, 50);
  GoAroundThePocket(walk).Go(kLeft, 49).Go(kDown);
  GeneratorRig rig(walk);
  CageOneTrace trace(rig);
  rig.generator.BuildTesselPattern();
  EXPECT_EQ(trace.BeforeStep(58), std::vector<int>{0});
  EXPECT_EQ(trace.BeforeStep(57 + 58).size(), 9u);
}

TEST(CageGenerator, RefusedLayoutIsAbandonedLikeAnyFailedAttempt) {
  ScriptedWalk walk;
  walk.GoNineTimes(kRight).GoNineTimes(kDown);
  GeneratorRig rig(walk);
  std::vector<PerCell<std::int16_t>> offered;
  rig.accept = [&] {
    EXPECT_TRUE(IsLayout(rig.state));
    EXPECT_EQ(rig.view.beeps, 0);
    offered.push_back(rig.state.CageOfCell);
    return offered.size() == 2;
  };
  rig.generator.BuildTesselPattern();
  EXPECT_THAT(offered, testing::ElementsAre(RowsLayout(), ColumnsLayout()));
  EXPECT_EQ(rig.state.CageOfCell, ColumnsLayout());
  EXPECT_TRUE(IsPaintedInCageColours(rig.state, rig.form));
  EXPECT_EQ(rig.view.beeps, 1);
  EXPECT_EQ(rig.view.pumps, walk.Length());
}

TEST(CageGenerator, SeedsTheRandomSourceOnceFromTheClock) {
  ScriptedWalk walk;
  GoAroundThePocket(walk).Go(kLeft, 50);
  GeneratorRig rig(walk, 1000);
  rig.accept = [&] { return rig.judged == 3; };
  rig.generator.BuildTesselPattern();
  EXPECT_EQ(walk.seedings, 1);
  EXPECT_EQ(rig.clock.nextSeed, 1001u);
}

TEST(CageGenerator, SameSeedSameLayoutWhateverTheStateBefore) {
  SeededRandom random;
  GeneratorRig rig(random);
  rig.clock.nextSeed = 5;
  rig.generator.BuildTesselPattern();
  const auto first = rig.state.CageOfCell;
  rig.generator.BuildTesselPattern();
  EXPECT_NE(rig.state.CageOfCell, first);
  rig.clock.nextSeed = 5;
  rig.generator.BuildTesselPattern();
  EXPECT_EQ(rig.state.CageOfCell, first);
}

TEST(CageGenerator, ReadsRotationalOnceAnAttempt) {
  SeededRandom random;
  GeneratorRig rig(random, 3);
  rig.view.onPump = [&](long pump) {
    if (pump == 20) rig.form.SetChecked(CheckBox::Rotational, true);
  };
  rig.accept = [&] {
    if (rig.judged == 1) {
      EXPECT_FALSE(IsRotational(rig.state));
    }
    return rig.judged == 2;
  };
  rig.generator.BuildTesselPattern();
  EXPECT_TRUE(IsRotational(rig.state));
}

TEST(CageGenerator, RegularLayoutIsTheNineBoxesRowByRowWithoutABeep) {
  SeededRandom random;
  GeneratorRig rig(random);
  rig.form.SetChecked(CheckBox::Rotational, true);
  rig.generator.BuildRegularLayout();
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(rig.state.CageOfCell[cell], 1 + RowOf(cell) / 3 * 3 + ColumnOf(cell) / 3);
  }
  EXPECT_TRUE(IsLayout(rig.state));
  EXPECT_TRUE(IsPaintedInCageColours(rig.state, rig.form));
  EXPECT_EQ(rig.view.beeps, 0);
  EXPECT_EQ(rig.view.pumps, 0);
}

}  // namespace
}  // namespace tessel
