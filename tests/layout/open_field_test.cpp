#include "layout/open_field.h"

#include <gtest/gtest.h>

#include <string_view>

#include "core/game_state.h"
#include "core/random_source.h"
#include "tests/oracle/search/literal_layout.h"
#include "tests/oracle/search/samples.h"

namespace tessel {
namespace {

using oracle::GridOf;

#ifdef __SANITIZE_ADDRESS__
constexpr int kPartialLayouts = 2'000;
#else
constexpr int kPartialLayouts = 30'000;
#endif

CellSet UnclaimedCells(const GameState& state) {
  CellSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (state.CageOfCell[cell] == 0) cells = cells | CellSet::Of(cell);
  }
  return cells;
}

struct OpenFieldTest : testing::Test {
  // Whether cage 1, which stands where `cages` says and needs `cellsToCover` more cells, leaves the
  // field open.
  bool Opens(std::string_view cages, int cellsToCover) {
    state.CageOfCell = GridOf(cages);
    return IsOpen(cellsToCover, 1, 0);
  }

  bool IsOpen(int cellsToCover, int currentCage, int lastAddedCell) const {
    return OpenField(RegionsOf(UnclaimedCells(state)), cellsToCover, currentCage, lastAddedCell);
  }

  GameState state;
};

TEST_F(OpenFieldTest, NothingLeftIsOpen) {
  state.CageOfCell.fill(9);
  EXPECT_TRUE(IsOpen(0, 9, 80));
}

TEST_F(OpenFieldTest, OneRegionIsOpenWhateverItsSize) {
  EXPECT_TRUE(Opens("111111111", 0));
  EXPECT_TRUE(Opens("11111", 4));
  EXPECT_TRUE(Opens("..11", 7));
}

TEST_F(OpenFieldTest, TwoRegionsWithACompleteCageNeedMultiplesOfNine) {
  EXPECT_TRUE(Opens(".........111111111", 0));  // 9 and 63
  EXPECT_TRUE(Opens("..................111111111", 0));
  EXPECT_FALSE(Opens("..1......111......1........1........1........1........1", 0));
}

TEST_F(OpenFieldTest, TwoRegionsAreOpenWhenTheCageCanTakeTheRestOfOne) {
  EXPECT_FALSE(Opens("..1......111......1........1........1........1", 1));  // 2 and 71
  EXPECT_TRUE(Opens("..1......111......1........1........1", 2));            // 2 and 72
  EXPECT_TRUE(Opens(".1........1........1.......11", 4));                    // 3 and 73
  EXPECT_FALSE(Opens(".1........1........1........1.......11", 3));          // 4 and 71
}

TEST_F(OpenFieldTest, ThreeRegionsAreNotOpen) {
  EXPECT_FALSE(Opens(".1.....1.11.....11", 3));
}

// It is not looked at whether the growing cage touches the region that it must finish in.
TEST_F(OpenFieldTest, RegionOutOfReachCountsAllTheSame) {
  state.CageOfCell = GridOf("..1......111......1........1........1........1........1");
  state.CageOfCell[79] = 2;
  state.CageOfCell[80] = 2;  // cage 2 has 7 cells to go and is nowhere near the corner's two
  EXPECT_TRUE(IsOpen(7, 2, 79));
}

TEST_F(OpenFieldTest, LastAddedCellIsNotConsulted) {
  state.CageOfCell = GridOf("..1......111......1........1........1........1");
  for (int cell = 0; cell < kCellCount; ++cell) {
    ASSERT_FALSE(IsOpen(1, 1, cell));
  }
}

// Unclaimed cells grown from a few seeds, so that they lie in one region or in several.
PerCell<std::int16_t> PartialLayout(RandomSource& random, int unclaimed, int seeds) {
  PerCell<std::int16_t> cages;
  cages.fill(3);
  const auto touchesUnclaimed = [&](int cell) {
    return (ColumnOf(cell) < 8 && cages[cell + 1] == 0) ||
           (RowOf(cell) < 8 && cages[cell + 9] == 0) ||
           (ColumnOf(cell) > 0 && cages[cell - 1] == 0) ||
           (RowOf(cell) > 0 && cages[cell - 9] == 0);
  };
  for (int made = 0; made < unclaimed;) {
    const int cell = DrawIndex(random, kCellCount);
    if (cages[cell] == 0 || (made >= seeds && !touchesUnclaimed(cell))) continue;
    cages[cell] = 0;
    ++made;
  }
  return cages;
}

TEST_F(OpenFieldTest, AnswersAsTheCellByCellScanOnPartialLayouts) {
  SeededRandom shapes(11);
  oracle::LiteralLayout literal(shapes);
  int open = 0;
  for (int i = 0; i < kPartialLayouts; ++i) {
    const int cage = 1 + DrawIndex(shapes, 9);
    const int cellsToCover = DrawIndex(shapes, 8);
    const int unclaimed = (9 - cage) * 9 + cellsToCover;
    state.CageOfCell = literal.CageOfCell =
        PartialLayout(shapes, unclaimed, 1 + DrawIndex(shapes, 3));
    const bool expected = literal.OpenField(cellsToCover, cage, 40);
    ASSERT_EQ(IsOpen(cellsToCover, cage, 40), expected) << "layout " << i;
    open += expected;
  }
  EXPECT_GT(open, kPartialLayouts / 4);
  EXPECT_LT(open, kPartialLayouts * 9 / 10);
}

}  // namespace
}  // namespace tessel
