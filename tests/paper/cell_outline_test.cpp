#include "paper/cell_outline.h"

#include <gtest/gtest.h>

#include "core/random_stream.h"

namespace tessel::paper {
namespace {

// Twice what the polygons enclose, in cells; those that go round holes count against the others.
int DoubleAreaOf(const std::vector<Outline>& outlines) {
  int area = 0;
  for (const Outline& outline : outlines) {
    for (std::size_t k = 0; k < outline.size(); ++k) {
      const Corner& here = outline[k];
      const Corner& next = outline[(k + 1) % outline.size()];
      area += here.column * next.row - next.column * here.row;
    }
  }
  return area;
}

// Each corner is a turn: the edges before and after it do not point the same way.
void ExpectTurns(const Outline& outline) {
  for (std::size_t k = 0; k < outline.size(); ++k) {
    const Corner& before = outline[(k + outline.size() - 1) % outline.size()];
    const Corner& after = outline[(k + 1) % outline.size()];
    EXPECT_NE(before.row == outline[k].row, outline[k].row == after.row);
  }
}

TEST(CellOutline, OfOneCellIsItsFourCorners) {
  EXPECT_EQ(OutlinesOf(CellSet::Of(CellAt(2, 3))),
            (std::vector<Outline>{{{2, 3}, {2, 4}, {3, 4}, {3, 3}}}));
}

TEST(CellOutline, OfTheBoardIsItsFourCorners) {
  EXPECT_EQ(OutlinesOf(kAllCells), (std::vector<Outline>{{{0, 0}, {0, 9}, {9, 9}, {9, 0}}}));
}

TEST(CellOutline, OfNothingIsNothing) {
  EXPECT_TRUE(OutlinesOf(CellSet{}).empty());
}

TEST(CellOutline, GoesRoundAHoleTheOtherWay) {
  const auto outlines = OutlinesOf(kAllCells - CellSet::Of(CellAt(4, 4)));
  ASSERT_EQ(outlines.size(), 2);
  EXPECT_EQ(DoubleAreaOf({outlines[1]}), -2);
}

TEST(CellOutline, PartsCellsThatTouchAtACorner) {
  const auto outlines = OutlinesOf(CellSet::Of(CellAt(0, 0)) | CellSet::Of(CellAt(1, 1)));
  ASSERT_EQ(outlines.size(), 2);
  EXPECT_EQ(outlines[0].size(), 4);
  EXPECT_EQ(outlines[1].size(), 4);
}

TEST(CellOutline, EnclosesAsManyCellsAsThereAre) {
  RandomStream random(1);
  for (int round = 0; round < 2000; ++round) {
    CellSet cells;
    for (int cell = 0; cell < kCellCount; ++cell) {
      if (random.Below(3) != 0) cells = cells | CellSet::Of(cell);
    }
    const auto outlines = OutlinesOf(cells);
    EXPECT_EQ(DoubleAreaOf(outlines), 2 * cells.Count());
    for (const Outline& outline : outlines) ExpectTurns(outline);
  }
}

}  // namespace
}  // namespace tessel::paper
