#include "core/layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/core/layouts.h"

namespace tessel {
namespace {

using testing::Contains;
using testing::ElementsAre;
using Fault = LayoutError::Fault;

LayoutError ErrorOf(const CageNumbers& cages) {
  const auto layout = Layout::FromCages(cages);
  EXPECT_FALSE(layout);
  return layout ? LayoutError{} : layout.error();
}

TEST(Layout, KnowsTheCageOfACellAndTheCellsOfACage) {
  const Layout layout = *Layout::FromCages(CagesOf(kIrregularLayout));
  EXPECT_EQ(layout.CageOf(0), 1);
  EXPECT_EQ(layout.CageOf(80), 9);
  EXPECT_THAT(layout.CellsOf(3), ElementsAre(6, 7, 8, 15, 16, 17, 25, 26, 35));
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_THAT(layout.CellsOf(layout.CageOf(cell)), Contains(cell));
  }
}

TEST(Layout, ListsRowsThenColumnsThenCages) {
  const Layout layout = *Layout::FromCages(CagesOf(kIrregularLayout));
  std::size_t next = 0;
  for (const HouseKind kind : kHouseKinds) {
    EXPECT_EQ(&layout.HousesOf(kind)[0], &layout.AllHouses()[next]);
    for (int index = 0; index < kSide; ++index, ++next) {
      EXPECT_EQ(layout.AllHouses()[next].kind, kind);
      EXPECT_EQ(layout.AllHouses()[next].index, index);
    }
  }
  EXPECT_THAT(layout.AllHouses()[8].cells, ElementsAre(72, 73, 74, 75, 76, 77, 78, 79, 80));
  EXPECT_THAT(layout.AllHouses()[9].cells, ElementsAre(0, 9, 18, 27, 36, 45, 54, 63, 72));
  EXPECT_EQ(layout.AllHouses()[20].cells, layout.CellsOf(3));
}

TEST(Layout, PeersAreTheOtherCellsThatShareAHouse) {
  const Layout layout = *Layout::FromCages(CagesOf(kIrregularLayout));
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int other = 0; other < kCellCount; ++other) {
      const bool shares = RowOf(cell) == RowOf(other) || ColumnOf(cell) == ColumnOf(other) ||
                          layout.CageOf(cell) == layout.CageOf(other);
      EXPECT_EQ(layout.PeersOf(cell).Contains(other), shares && cell != other);
    }
  }
}

TEST(Layout, RegularCagesAreTheBoxes) {
  EXPECT_THAT(Layout::Regular().CellsOf(1), ElementsAre(0, 1, 2, 9, 10, 11, 18, 19, 20));
  EXPECT_THAT(Layout::Regular().CellsOf(9), ElementsAre(60, 61, 62, 69, 70, 71, 78, 79, 80));
  EXPECT_EQ(Layout::Regular(), *Layout::FromCages(Layout::Regular().Cages()));
}

TEST(Layout, LayoutsAreEqualWhenTheirCagesAre) {
  EXPECT_NE(Layout::Regular(), *Layout::FromCages(CagesOf(kIrregularLayout)));
}

TEST(LayoutError, NamesANumberThatIsNoCage) {
  CageNumbers cages = Layout::Regular().Cages();
  cages[13] = 0;
  EXPECT_EQ(ErrorOf(cages).fault, Fault::kNumberOutOfRange);
  EXPECT_EQ(ErrorOf(cages).cell, 13);
  cages[13] = 10;
  EXPECT_EQ(ErrorOf(cages).message, "cage 10 is no number from 1 to 9");
}

TEST(LayoutError, NamesTheLowestCageThatHasNotNineCells) {
  CageNumbers cages = Layout::Regular().Cages();
  cages[80] = 3;
  const LayoutError error = ErrorOf(cages);
  EXPECT_EQ(error.fault, Fault::kNotNineCells);
  EXPECT_EQ(error.cage, 3);
  EXPECT_EQ(error.cell, 6);
  EXPECT_EQ(error.size, 10);
  EXPECT_EQ(error.message, "cage 3 has 10 cells instead of 9");
}

TEST(LayoutError, NamesACageWithoutCells) {
  CageNumbers cages{};
  cages.fill(2);
  EXPECT_EQ(ErrorOf(cages).message, "cage 1 has 0 cells instead of 9");
}

TEST(LayoutError, NamesACageInTwoParts) {
  CageNumbers cages = Layout::Regular().Cages();
  std::swap(cages[0], cages[80]);
  const LayoutError error = ErrorOf(cages);
  EXPECT_EQ(error.fault, Fault::kNotConnected);
  EXPECT_EQ(error.message, "cage 1 is not connected");
  EXPECT_TRUE(Layout::FromCages(cages, Layout::Shape::kAny));
}

TEST(LayoutError, CellsThatTouchByACornerAreNotConnected) {
  CageNumbers cages = Layout::Regular().Cages();
  std::swap(cages[20], cages[30]);
  EXPECT_EQ(ErrorOf(cages).fault, Fault::kNotConnected);
}

}  // namespace
}  // namespace tessel
