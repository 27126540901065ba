#include "shell/qt/small_board.h"

#include <QPainter>

#include "core/cage_edges.h"

namespace tessel {

namespace {

class SmallBoardDrawing {
 public:
  SmallBoardDrawing(QPainter& painter, const QRect& place, const PuzzleRecord& puzzle,
                    const CageColours& colours)
      : painter_(painter), place_(place), puzzle_(puzzle), colours_(colours) {}

  void Draw() {
    for (int cell = 0; cell < kCellCount; ++cell) DrawGround(cell);
    for (int cell = 0; cell < kCellCount; ++cell) DrawWalls(cell);
    QFont font = painter_.font();
    font.setPixelSize(qMax(1, CellRect(0).height() * 8 / 10));
    painter_.setFont(font);
    for (int cell = 0; cell < kCellCount; ++cell) DrawGiven(cell);
  }

 private:
  QRect CellRect(int cell) const {
    const auto line = [](int start, int length, int k) { return start + length * k / kSide; };
    const QPoint from(line(place_.left(), place_.width() - 1, ColumnOf(cell)),
                      line(place_.top(), place_.height() - 1, RowOf(cell)));
    const QPoint to(line(place_.left(), place_.width() - 1, ColumnOf(cell) + 1),
                    line(place_.top(), place_.height() - 1, RowOf(cell) + 1));
    return {from, to};
  }

  void DrawGround(int cell) {
    const Rgb colour = colours_[puzzle_.CageMap[cell] - 1u];
    painter_.fillRect(CellRect(cell), QColor(colour.red, colour.green, colour.blue));
  }

  void DrawWalls(int cell) {
    const auto together = [this](int a, int b) { return puzzle_.CageMap[a] == puzzle_.CageMap[b]; };
    const QRect rect = CellRect(cell);
    painter_.setPen(Qt::black);
    if (IsWall(cell, CellSide::kLeft, together))
      painter_.drawLine(rect.topLeft(), rect.bottomLeft());
    if (IsWall(cell, CellSide::kTop, together)) painter_.drawLine(rect.topLeft(), rect.topRight());
    if (ColumnOf(cell) == kSide - 1) painter_.drawLine(rect.topRight(), rect.bottomRight());
    if (RowOf(cell) == kSide - 1) painter_.drawLine(rect.bottomLeft(), rect.bottomRight());
  }

  void DrawGiven(int cell) {
    const int digit = puzzle_.Board[cell];
    if (digit != 0) painter_.drawText(CellRect(cell), Qt::AlignCenter, QString::number(digit));
  }

  QPainter& painter_;
  const QRect place_;
  const PuzzleRecord& puzzle_;
  const CageColours& colours_;
};

}  // namespace

void PaintSmallBoard(QPainter& painter, const QRect& place, const PuzzleRecord& puzzle,
                     const CageColours& colours) {
  painter.save();
  SmallBoardDrawing(painter, place, puzzle, colours).Draw();
  painter.restore();
}

QPixmap SmallBoard(const PuzzleRecord& puzzle, const CageColours& colours, int side,
                   qreal pixelRatio) {
  QPixmap picture(QSize(side, side) * pixelRatio);
  picture.setDevicePixelRatio(pixelRatio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  PaintSmallBoard(painter, QRect(0, 0, side, side), puzzle, colours);
  return picture;
}

}  // namespace tessel
