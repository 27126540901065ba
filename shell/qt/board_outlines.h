// The lines that show what the player points at.
#pragma once

#include <QColor>
#include <QRegion>

#include "shell/qt/board_geometry.h"

class QPainter;

namespace tessel {

// Of the ring round the cell that the keyboard acts on. Contrast of at least 3:1 on every ground.
inline constexpr QColor kFocusRing(0, 20, 150);
// Of the same ring while it flashes, because what was asked for is refused.
inline constexpr QColor kRefusalRing(255, 0, 0);

// Outlines, because the ground of a cell says which cage it is in. They run in the room that a
// border takes, or would take, at the edges of cells: there they meet no mark, and where a border
// is, it stays the thickest line.
class BoardOutlines {
 public:
  BoardOutlines(QPainter& painter, const BoardGeometry& geometry)
      : painter_(painter), geometry_(geometry) {}

  // Black along the edges and white within: one of the two shows on any ground.
  void Surround(const QRegion& cells);
  // The same for the cell that is pointed at, white in the whole room.
  void Point(int cell);
  // The keyboard's ring round a cell, and round the whole board while no cell can be played.
  void Focus(int cell, const QColor& colour = kFocusRing);
  void FocusBoard();
  // Where the row and the column of a hint cross.
  void Hint(int cell);
  // Round the digit of a cell, and round a mark whose ink lies there.
  void RingDigit(int cell);
  void RingMark(const QRect& ink);

 private:
  void Ring(const QRegion& cells, int from, int to, const QColor& colour);
  void DrawRounded(const QRectF& place, double width, double radius);

  QPainter& painter_;
  const BoardGeometry& geometry_;
};

}  // namespace tessel
