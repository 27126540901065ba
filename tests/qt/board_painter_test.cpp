#include "shell/qt/board_painter.h"

#include <gtest/gtest.h>

#include "tests/qt/painted_board.h"

namespace tessel {
namespace {

// The line between two neighbours, from which the ends are cut off where other lines meet it.
QRect EdgeBetween(const PaintedBoard& board, int cell, int neighbour, int width) {
  const QRect place = board.geometry.CellRect(neighbour);
  const int cut = 2 * board.geometry.BorderWidth();
  const int before = width / 2;
  return ColumnOf(cell) == ColumnOf(neighbour)
             ? QRect(place.left() + cut, place.top() - before, place.width() - 2 * cut, width)
             : QRect(place.left() - before, place.top() + cut, width, place.height() - 2 * cut);
}

template <typename Check>
void ForEveryEdge(const Check& check) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (ColumnOf(cell) < kSide - 1) check(cell, cell + 1);
    if (RowOf(cell) < kSide - 1) check(cell, cell + kSide);
  }
}

class BoardPainterAt : public testing::TestWithParam<std::pair<int, double>> {
 protected:
  PaintedBoard board{GetParam().first, GetParam().second};
};

INSTANTIATE_TEST_SUITE_P(Sizes, BoardPainterAt,
                         testing::Values(std::pair(276, 1.0), std::pair(600, 1.0),
                                         std::pair(1111, 1.0), std::pair(750, 1.5),
                                         std::pair(1200, 2.0)));

TEST_P(BoardPainterAt, BordersAreBlackBetweenCagesOnly) {
  board.PaintRegularCages();
  const QImage image = board.Paint();
  const int width = board.geometry.BorderWidth();
  ForEveryEdge([&](int cell, int neighbour) {
    const QRect edge = EdgeBetween(board, cell, neighbour, width);
    const int black = CountIn(image, edge, Qt::black);
    const bool border = board.form.Cell(cell).background != board.form.Cell(neighbour).background;
    EXPECT_EQ(black, border ? edge.width() * edge.height() : 0) << cell << " " << neighbour;
  });
}

TEST_P(BoardPainterAt, LinesInsideACageAreOneThinLine) {
  board.PaintRegularCages();
  const QImage image = board.Paint();
  ForEveryEdge([&](int cell, int neighbour) {
    const Rgb ground = board.form.Cell(cell).background;
    if (ground != board.form.Cell(neighbour).background) return;
    const QRect edge = EdgeBetween(board, cell, neighbour, board.geometry.BorderWidth());
    const int drawn = edge.width() * edge.height() - CountIn(image, edge, ColourOf(ground));
    EXPECT_EQ(drawn, std::max(edge.width(), edge.height()) * board.geometry.LineWidth());
  });
}

TEST_P(BoardPainterAt, FrameSurroundsTheBoardBeforeTheFirstSaw) {
  const QImage image = board.Paint();
  const QRect cells = board.geometry.BoardRect();
  const int width = board.geometry.BorderWidth();
  const int before = width / 2;
  const auto frame = [&](int x, int y, int w, int h) {
    EXPECT_EQ(ColoursIn(image, {x, y, w, h}), std::set{qRgb(0, 0, 0)});
  };
  const int right = cells.left() + cells.width();
  const int bottom = cells.top() + cells.height();
  frame(cells.left() - before, cells.top() - before, cells.width() + width, width);
  frame(cells.left() - before, bottom - before, cells.width() + width, width);
  frame(cells.left() - before, cells.top() - before, width, cells.height() + width);
  frame(right - before, cells.top() - before, width, cells.height() + width);
  EXPECT_EQ(CountIn(image, cells.adjusted(width, width, -width, -width), Qt::black), 0);
}

TEST_P(BoardPainterAt, HiddenMarkLeavesNoPixel) {
  board.PaintRegularCages();
  const QImage image = board.Paint();
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(ColoursIn(image, board.Interior(cell)),
              std::set{ColourOf(board.form.Cell(cell).background).rgb()});
  }
}

TEST_P(BoardPainterAt, DigitsArePureBlackOnEveryCageColour) {
  board.PaintRegularCages();
  for (int cell = 0; cell < kCellCount; ++cell) board.form.SetCellText(cell, cell % kSide + 1);
  const QImage image = board.Paint();
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_GT(CountIn(image, board.Interior(cell), Qt::black), board.geometry.CellSide() / 3);
  }
}

TEST_P(BoardPainterAt, MarkStaysInItsSquare) {
  board.PaintRegularCages();
  for (int digit = 1; digit <= kSide; ++digit) {
    board.form.SetMarkColour(kCentreCell, digit, kBlack);
    const QImage image = board.Paint();
    const QRect square = board.geometry.MarkRect(kCentreCell, digit);
    const QRect inside = square & board.Interior(kCentreCell);
    const QColor ground = ColourOf(board.form.Cell(kCentreCell).background);
    EXPECT_LT(CountIn(image, inside, ground), inside.width() * inside.height());
    const QRect all = board.Interior(kCentreCell);
    EXPECT_EQ(CountIn(image, all, ground) - CountIn(image, inside, ground),
              all.width() * all.height() - inside.width() * inside.height());
    board.form.SetMarksColour(kCentreCell, board.form.Cell(kCentreCell).background);
  }
}

TEST_P(BoardPainterAt, InvisibleMarkIsNotDrawnWhateverItsColour) {
  board.PaintRegularCages();
  board.form.SetMarksColour(kCentreCell, kBlack);
  board.form.SetMarksVisible(kCentreCell, false);
  EXPECT_EQ(ColoursIn(board.Paint(), board.Interior(kCentreCell)).size(), 1u);
}

TEST_P(BoardPainterAt, EmphasisedMarkIsBold) {
  board.form.SetMarkColour(0, 5, kBlack);
  const QRect square = board.geometry.MarkRect(0, 5);
  const long regular = Ink(board.Paint(), square);
  board.form.SetMarkBold(0, 5, true);
  EXPECT_GT(Ink(board.Paint(), square), regular);
}

TEST_P(BoardPainterAt, GivensAreBoldAndEntriesAreNot) {
  board.form.SetCellText(0, 5);
  board.form.SetCellText(1, 5);
  board.state.SavedPuzzle.Board[0] = 5;
  const auto inks = [this] {
    const QImage image = board.Paint();
    return std::pair(Ink(image, board.Interior(0)), Ink(image, board.Interior(1)));
  };
  EXPECT_EQ(inks().first, inks().second) << "a generated grid is all of one kind";
  board.form.ShowSolveButtons(true);
  EXPECT_GT(inks().first, inks().second);
}

TEST_P(BoardPainterAt, CaptionsAreBlackOnTheLightPanel) {
  const QImage image = board.Paint();
  for (int line = 0; line < kSide; ++line) {
    for (const QRect& place :
         {board.geometry.RowCaptionRect(line), board.geometry.ColumnCaptionRect(line)}) {
      const QRect inside = place.adjusted(1, 1, -1, -1);
      EXPECT_GT(CountIn(image, inside, Qt::black), 0);
      EXPECT_GT(CountIn(image, inside, ColourOf(kBoardColour)),
                inside.width() * inside.height() / 3);
      EXPECT_EQ(CountIn(image, inside, Qt::red), 0);
    }
  }
}

TEST_P(BoardPainterAt, RedCaptionGetsAnArrow) {
  const QImage before = board.Paint();
  board.form.SetLabelRow(3, kHighlightRed);
  board.form.SetLabelColumn(7, kHighlightRed);
  const QImage image = board.Paint();
  for (int line = 0; line < kSide; ++line) {
    const QRect row = board.geometry.RowCaptionRect(line).adjusted(1, 1, -1, -1);
    const QRect column = board.geometry.ColumnCaptionRect(line).adjusted(1, 1, -1, -1);
    EXPECT_EQ(CountIn(image, row, Qt::red) > 0, line == 3);
    EXPECT_EQ(CountIn(image, column, Qt::red) > 0, line == 7);
  }
  // The arrow lies between caption and board, where a black caption leaves everything light.
  const int arrow = board.geometry.CaptionPixels() / 4;  // and a little less
  const QRect row = board.geometry.RowCaptionRect(3);
  const QRect strip(row.right() - arrow + 1, row.top(), arrow, row.height());
  EXPECT_GT(CountIn(image, strip, Qt::red), 0);
  EXPECT_EQ(ColoursIn(before, strip), std::set{ColourOf(kBoardColour).rgb()});
}

TEST_P(BoardPainterAt, PaintingAPartEqualsPaintingAll) {
  board.PaintRegularCages();
  QImage image = board.Paint();
  board.form.SetCellText(40, 7);
  board.form.SetCellBackground(41, kCageColours[0]);
  board.form.SetMarkColour(50, 9, kBlack);
  const int border = board.geometry.BorderWidth();
  QRegion changed;
  for (const int cell : {40, 41, 50}) {
    changed += board.geometry.CellRect(cell).adjusted(-border, -border, border, border);
  }
  board.Paint(image, changed);
  EXPECT_EQ(image, board.Paint());
}

TEST_P(BoardPainterAt, CagesOfOneColourKeepTheirBordersAndHideTheirMarks) {
  board.PaintRegularCages();
  board.form.SetMarkColour(kCentreCell, 5, kBlack);
  board.cageColours.fill(Rgb{200, 210, 220});
  const QImage image = board.Paint();
  const int width = board.geometry.BorderWidth();
  ForEveryEdge([&](int cell, int neighbour) {
    const QRect edge = EdgeBetween(board, cell, neighbour, width);
    const bool border = board.form.Cell(cell).background != board.form.Cell(neighbour).background;
    EXPECT_EQ(CountIn(image, edge, Qt::black), border ? edge.width() * edge.height() : 0);
  });
  for (int cell = 0; cell < kCellCount; ++cell) {
    const auto colours = ColoursIn(image, board.Interior(cell));
    EXPECT_TRUE(colours.contains(qRgb(200, 210, 220)));
    EXPECT_EQ(colours.size() == 1, cell != kCentreCell) << cell;
  }
}

TEST_P(BoardPainterAt, MarksAreAtLeastEightPixels) {
  EXPECT_GE(board.geometry.MarkPixels(), 8 * GetParam().second);
}

}  // namespace
}  // namespace tessel
