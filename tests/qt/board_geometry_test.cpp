#include "shell/qt/board_geometry.h"

#include <gtest/gtest.h>

#include <QRegion>

#include "shell/tessel_main.h"

namespace tessel {
namespace {

struct Case {
  QSize area;
  double scale;
};

std::vector<Case> Cases() {
  std::vector<Case> cases;
  for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
    for (int width = 276; width <= 1600; width += 83) {
      for (const int height : {276, 501, 777, 1200}) {
        cases.push_back({QSize(width, height) * scale, scale});
      }
    }
  }
  return cases;
}

BoardGeometry Make(const Case& c) {
  return {c.area, c.scale, 96.0 / 72.0 * c.scale};
}

TEST(BoardGeometry, CellSideIsDivisibleByThree) {
  for (const Case& c : Cases()) EXPECT_EQ(Make(c).CellSide() % 3, 0);
}

TEST(BoardGeometry, PanelFitsAndTheNextLargerCellWouldNot) {
  for (const Case& c : Cases()) {
    const BoardGeometry geometry = Make(c);
    EXPECT_TRUE(QRect(QPoint(0, 0), c.area).contains(geometry.PanelRect()));
    EXPECT_TRUE(geometry.PanelRect().contains(geometry.BoardRect()));
    EXPECT_EQ(geometry.PanelRect().width(), geometry.PanelRect().height());
    const int spare = std::min(c.area.width(), c.area.height()) - geometry.PanelRect().width();
    // A larger cell takes 27 pixels for the cells, and its captions and frame may grow as well.
    EXPECT_LT(spare, 27 + 6) << c.area.width() << "x" << c.area.height() << " at " << c.scale;
  }
}

TEST(BoardGeometry, CaptionsAreAtLeastFourteenPoints) {
  for (const Case& c : Cases()) {
    EXPECT_GE(Make(c).CaptionPixels(), 14 * 96.0 / 72.0 * c.scale);
  }
}

TEST(BoardGeometry, BordersAreThreePixelsOrAFourteenthOfTheCell) {
  for (const Case& c : Cases()) {
    const BoardGeometry geometry = Make(c);
    EXPECT_EQ(geometry.BorderWidth(), std::max(qRound(3 * c.scale), geometry.CellSide() / 14));
    EXPECT_GE(geometry.BorderWidth(), 3 * geometry.LineWidth());
  }
}

TEST(BoardGeometry, MarkSquaresTileTheCell) {
  for (const Case& c : Cases()) {
    const BoardGeometry geometry = Make(c);
    QRegion marks;
    int area = 0;
    for (int digit = 1; digit <= kSide; ++digit) {
      const QRect mark = geometry.MarkRect(kCentreCell, digit);
      marks += mark;
      area += mark.width() * mark.height();
    }
    EXPECT_EQ(marks, QRegion(geometry.CellRect(kCentreCell)));
    EXPECT_EQ(area, geometry.CellSide() * geometry.CellSide());
  }
}

// What the logic makes of a place in the cell.
int DigitAt(const CellPoint& point) {
  return 3 * static_cast<int>(point.y / kMarkUnits) + static_cast<int>(point.x / kMarkUnits) + 1;
}

TEST(BoardGeometry, EveryPixelOfAMarkSquareNamesItsDigit) {
  for (const Case& c : {Case{QSize(300, 276), 1.0}, Case{QSize(751, 640), 1.5}}) {
    const BoardGeometry geometry = Make(c);
    for (int cell = 0; cell < kCellCount; ++cell) {
      for (int digit = 1; digit <= kSide; ++digit) {
        const QRect mark = geometry.MarkRect(cell, digit);
        for (const QPoint corner :
             {mark.topLeft(), mark.topRight(), mark.bottomLeft(), mark.bottomRight()}) {
          const auto point = geometry.At(corner);
          ASSERT_TRUE(point);
          EXPECT_EQ(point->cell, cell);
          EXPECT_EQ(DigitAt(*point), digit);
        }
      }
    }
  }
}

TEST(BoardGeometry, UnitsRunFromZeroToJustBelow375) {
  const BoardGeometry geometry = Make({QSize(600, 600), 1.0});
  const QRect cell = geometry.CellRect(80);
  const auto first = geometry.At(cell.topLeft());
  EXPECT_DOUBLE_EQ(first->x, 0.0);
  EXPECT_DOUBLE_EQ(first->y, 0.0);
  const auto last = geometry.At(QPointF(cell.bottomRight()) + QPointF(0.99, 0.99));
  EXPECT_EQ(last->cell, 80);
  EXPECT_LT(last->x, 375.0);
  EXPECT_GT(last->x, 374.0);
}

TEST(BoardGeometry, NothingLiesBesideTheCells) {
  const BoardGeometry geometry = Make({QSize(600, 500), 1.0});
  const QRect board = geometry.BoardRect();
  EXPECT_FALSE(geometry.At(board.topLeft() - QPoint(1, 0)));
  EXPECT_FALSE(geometry.At(board.topLeft() - QPoint(0, 1)));
  EXPECT_FALSE(geometry.At(board.bottomRight() + QPoint(1, 0)));
  EXPECT_FALSE(geometry.At(board.bottomRight() + QPoint(0, 1)));
}

}  // namespace
}  // namespace tessel
