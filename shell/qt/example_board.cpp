#include "shell/qt/example_board.h"

#include <QPainter>

#include "shell/qt/board_painter.h"

namespace tessel {

ExampleBoard::ExampleBoard(const Technique& technique, const MarkedBoard& board) {
  const Hint hint = FirstHint(technique, board).value();
  sentence_ = technique.sentence(hint);
  ShowBoard(board);
  ShowHint(hint, technique.captions(hint));
}

void ExampleBoard::ShowBoard(const MarkedBoard& board) {
  FillTables(state_);
  SetLayout(state_, board.layout);
  for (int cell = 0; cell < kCellCount; ++cell) {
    form_.SetCellOpaque(cell, true);
    form_.SetCellBackground(cell, CageColourOf(state_, cell));
    form_.SetCellText(cell, board.digits[cell]);
    form_.ShowMarks(cell, board.candidates[cell]);
    form_.SetMarksColour(cell, kBlack);
  }
}

void ExampleBoard::ShowHint(const Hint& hint, const Captions& captions) {
  for (int line = 0; line < kSide; ++line) {
    if ((captions.rows >> line & 1) != 0) form_.SetLabelRow(line, kHighlightRed);
    if ((captions.columns >> line & 1) != 0) form_.SetLabelColumn(line, kHighlightRed);
  }
  ForEach(hint.cells, [&](int cell) { ShowMarks(cell, hint.digits, kBlack); });
  if (hint.PlacesDigit()) ShowMarks(*hint.cell, BitOf(*hint.digit), kHighlightRed);
  for (const auto& [cell, digits] : hint.eliminations) ShowMarks(cell, digits, kHighlightRed);
}

void ExampleBoard::ShowMarks(int cell, Mask digits, Rgb colour) {
  for (int digit = 1; digit <= kSide; ++digit) {
    if (!Holds(digits, digit)) continue;
    form_.SetMarkBold(cell, digit, true);
    form_.SetMarkColour(cell, digit, colour);
  }
}

QImage ExampleBoard::Picture(int side, double scale, const QFont& font) const {
  const int pixels = qRound(side * scale);
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  const BoardGeometry geometry(image.size(), scale, 96.0 / 72.0 * scale);
  BoardPainter(form_, state_, geometry, font).Paint(painter, image.rect(), {});
  return image;
}

}  // namespace tessel
