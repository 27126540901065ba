// What pointing and hints draw over the board.
#include "shell/qt/board_outlines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "shell/qt/board_painter.h"
#include "tests/qt/contrast.h"
#include "tests/qt/painted_board.h"

namespace tessel {
namespace {

class BoardOutlinesAt : public testing::TestWithParam<std::pair<int, double>> {
 protected:
  BoardOutlinesAt() {
    board.PaintRegularCages();
    board.Open();
  }

  // With every mark shown.
  void ShowMarks() {
    for (int cell = 0; cell < kCellCount; ++cell) board.form.SetMarksColour(cell, kBlack);
  }
  void Redden(int cell) { board.form.HighlightCell(cell); }

  PaintedBoard board{GetParam().first, GetParam().second};
};

INSTANTIATE_TEST_SUITE_P(Sizes, BoardOutlinesAt,
                         testing::Values(std::pair(276, 1.0), std::pair(303, 1.0),
                                         std::pair(600, 1.0), std::pair(1111, 1.0),
                                         std::pair(750, 1.5), std::pair(1200, 2.0)));

const BoardHighlights kHighlights[] = {{.active = kCentreCell},
                                       {.active = kCentreCell, .focused = kCentreCell},
                                       {.active = 10, .focused = 71},
                                       {.focused = 0}};

TEST_P(BoardOutlinesAt, NeverReachAMarkOrTint) {
  ShowMarks();
  Redden(42);
  board.form.SetAllCaptions(kBlack);
  const QImage plain = board.Paint();
  Redden(42);
  for (const BoardHighlights& highlights : kHighlights) {
    const QImage image = board.Paint(highlights);
    EXPECT_NE(image, plain);
    const BoardPainter painter = board.Painter();
    for (int cell = 0; cell < kCellCount; ++cell) {
      for (int digit = 1; digit <= kSide; ++digit) {
        const QRect ink = painter.MarkInk(cell, digit);
        EXPECT_EQ(image.copy(ink), plain.copy(ink)) << cell << " " << digit;
      }
    }
  }
}

TEST_P(BoardOutlinesAt, NoBorderReachesAMark) {
  board.form.SetAllCaptions(kBlack);
  const BoardPainter painter = board.Painter();
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int digit = 1; digit <= kSide; ++digit) {
      EXPECT_TRUE(board.Interior(cell).contains(painter.MarkInk(cell, digit)));
    }
  }
}

// All cells whose edges look different.
std::set<int> Touched(const PaintedBoard& board, const QImage& image, const QImage& plain) {
  std::set<int> cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const QRect place = board.geometry.CellRect(cell);
    const QRect middle(place.center().x(), place.top(), 1, place.height());
    const QRect level(place.left(), place.center().y(), place.width(), 1);
    if (image.copy(middle) != plain.copy(middle) || image.copy(level) != plain.copy(level)) {
      cells.insert(cell);
    }
  }
  return cells;
}

TEST_P(BoardOutlinesAt, PointingMarksCellCageRowAndColumn) {
  const std::set<int> touched = Touched(board, board.Paint({.active = kCentreCell}), board.Paint());
  for (int cell = 0; cell < kCellCount; ++cell) {
    const bool inBox = RowOf(cell) / 3 == 1 && ColumnOf(cell) / 3 == 1;
    if (RowOf(cell) == 4 || ColumnOf(cell) == 4 || (inBox && cell != kCentreCell)) {
      EXPECT_TRUE(touched.contains(cell)) << cell;
    }
  }
  EXPECT_FALSE(touched.contains(0));
}

TEST_P(BoardOutlinesAt, AreDrawnOnlyWhereClicksAct) {
  const auto unmoved = [this] {
    const QRect cells = board.geometry.BoardRect();
    const QImage plain = board.Paint();
    Redden(42);
    const QImage image = board.Paint({.active = 40, .focused = 40, .target = TargetMark{40, 5}});
    board.form.SetAllCaptions(kBlack);
    return image.copy(cells) == plain.copy(cells);
  };
  EXPECT_FALSE(unmoved());
  board.form.SetRunning(Button::CommandGo);
  EXPECT_TRUE(unmoved()) << "a command is at work";
  board.form.SetRunning(std::nullopt);
  board.form.Enable(Button::CommandSolution, false);
  EXPECT_TRUE(unmoved()) << "the game is over";
  board.form.Enable(Button::CommandSolution, true);
  board.form.ShowSolveButtons(false);
  EXPECT_TRUE(unmoved()) << "no game";
}

TEST_P(BoardOutlinesAt, FocusOnAClosedBoardShowsRoundIt) {
  board.form.ShowSolveButtons(false);
  const QImage image = board.Paint({.focused = 40});
  EXPECT_NE(image, board.Paint());
  const QRect cells = board.geometry.BoardRect();
  EXPECT_EQ(image.copy(cells), board.Paint().copy(cells));
}

// The colours that a pointer brings to the edges of a cell, whose ground they must differ from.
TEST_P(BoardOutlinesAt, ContrastWithEveryCageIsThreeToOne) {
  const QImage plain = board.Paint();
  for (int cage = 0; cage < kSide; ++cage) {
    const int cell = CellAt(cage / 3 * 3 + 1, cage % 3 * 3 + 1);  // the middle of its box
    const QColor ground = ColourOf(kCageColours[static_cast<std::size_t>(cage)]);
    EXPECT_GE(Contrast(kFocusRing, ground), 3.0);
    EXPECT_GE(Contrast(Qt::black, ground), 3.0);
    for (const BoardHighlights& highlights :
         {BoardHighlights{.active = cell}, BoardHighlights{.focused = cell}}) {
      const QImage image = board.Paint(highlights);
      const QRect place = board.geometry.CellRect(cell);
      const int y = place.center().y();
      const int reach = board.geometry.LineReach();
      for (const int edge : {place.left(), place.right() + 1}) {
        double best = 1.0;
        for (int x = edge - reach; x < edge + reach; ++x) {
          if (image.pixel(x, y) == plain.pixel(x, y)) continue;
          best = std::max(best, Contrast(image.pixelColor(x, y), ground));
        }
        EXPECT_GE(best, 3.0) << "cage " << cage + 1;
      }
    }
  }
}

TEST_P(BoardOutlinesAt, HintRingsTheCellWhereItsLinesCross) {
  const QImage plain = board.Paint();
  Redden(30);
  const QImage hinted = board.Paint();
  const auto redIn = [&](const QImage& image, int cell) {
    const int reach = board.geometry.LineReach();
    return CountIn(image, board.geometry.CellRect(cell).adjusted(-reach, -reach, reach, reach),
                   Qt::red);
  };
  EXPECT_GE(redIn(hinted, 30), 2 * 4 * (board.geometry.CellSide() - 4));
  EXPECT_EQ(redIn(hinted, 33), 0);
  EXPECT_EQ(hinted.copy(board.Interior(30)), plain.copy(board.Interior(30)));
  board.form.SetLabelRow(8, kHighlightRed);
  EXPECT_EQ(redIn(board.Paint(), 30), 0) << "two rows are red";
  board.form.SetAllCaptions(kBlack);
  board.form.SetLabelRow(3, kHighlightRed);
  EXPECT_EQ(redIn(board.Paint(), 30), 0) << "no column is red";
}

TEST_P(BoardOutlinesAt, TargetWearsARingAndIsInvertedWhilePressed) {
  ShowMarks();
  const QImage plain = board.Paint();
  for (int digit = 1; digit <= kSide; ++digit) {
    const QRect square = board.geometry.MarkRect(kCentreCell, digit);
    const QImage ringed = board.Paint({.target = TargetMark{kCentreCell, digit}});
    const QImage pressed = board.Paint({.target = TargetMark{kCentreCell, digit, true}});
    EXPECT_GT(CountIn(ringed, square, Qt::white), CountIn(plain, square, Qt::white));
    EXPECT_GT(CountIn(ringed, square, Qt::black), CountIn(plain, square, Qt::black));
    EXPECT_NE(pressed, ringed);
    for (const QImage& image : {ringed, pressed}) {
      QImage rest = image;
      QPainter(&rest).drawImage(square, plain, square);
      EXPECT_EQ(rest, plain) << "nothing beside the mark's square";
    }
    if (square.width() < 12) continue;  // most of such a square is ring and mark
    EXPECT_GT(Ink(pressed, square), Ink(ringed, square) * 5 / 4);
  }
}

}  // namespace
}  // namespace tessel
