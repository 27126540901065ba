#include "shell/qt/board_geometry.h"

#include <QtMath>
#include <algorithm>

#include "core/cell_click.h"

namespace tessel {

namespace {

constexpr int kMinSide = 12;
constexpr double kMarkShare = 0.25;  // of the cell side
// Small cells give their marks a larger share, as long as they stay below these many logical
// pixels.
constexpr double kLargeMarkShare = 0.3;
constexpr double kGoodMark = 9.0;
constexpr double kMinMark = 8.0;
constexpr double kMinCaptionPoints = 14.0;
constexpr double kCaptionShare = 0.36;  // of the cell side, once that is more
constexpr double kBandShare = 1.45;     // of the caption's size: the caption, its arrow, air

}  // namespace

BoardGeometry::BoardGeometry(QSize area, double scale, double pixelsPerPoint) {
  const int room = std::min(area.width(), area.height());
  int side = std::max(kMinSide, room / kSide / kMarksPerLine * kMarksPerLine);
  TakeSide(side, scale, pixelsPerPoint);
  while (PanelSide() > room && side > kMinSide) {
    side -= kMarksPerLine;
    TakeSide(side, scale, pixelsPerPoint);
  }
  panel_ = QRect((area.width() - PanelSide()) / 2, (area.height() - PanelSide()) / 2, PanelSide(),
                 PanelSide());
}

void BoardGeometry::TakeSide(int side, double scale, double pixelsPerPoint) {
  side_ = side;
  border_ = std::max(qRound(3 * scale), side / 14);
  line_ = std::max(1, qFloor(scale));
  markPixels_ =
      qRound(std::max({kMarkShare * side, std::min(kLargeMarkShare * side, kGoodMark * scale),
                       std::min(side / 3.0, kMinMark * scale)}));
  captionPixels_ =
      std::max(qCeil(kMinCaptionPoints * pixelsPerPoint), qRound(kCaptionShare * side));
  band_ = qRound(kBandShare * captionPixels_);
  margin_ = border_ + qRound(3 * scale);
}

QRect BoardGeometry::BoardRect() const {
  return {panel_.left() + band_, panel_.top() + band_, kSide * side_, kSide * side_};
}

QRect BoardGeometry::CellRect(int cell) const {
  const QPoint origin = BoardRect().topLeft();
  return {origin.x() + ColumnOf(cell) * side_, origin.y() + RowOf(cell) * side_, side_, side_};
}

QRect BoardGeometry::RowCaptionRect(int row) const {
  const QRect first = CellRect(CellAt(row, 0));
  return {panel_.left(), first.top(), band_ - border_, side_};
}

QRect BoardGeometry::ColumnCaptionRect(int column) const {
  const QRect first = CellRect(CellAt(0, column));
  return {first.left(), panel_.top(), side_, band_ - border_};
}

QRect BoardGeometry::MarkRect(int cell, int digit) const {
  const int third = side_ / kMarksPerLine;
  const QPoint corner = CellRect(cell).topLeft();
  return {corner.x() + MarkColumnOf(digit) * third, corner.y() + MarkLineOf(digit) * third, third,
          third};
}

std::optional<CellPoint> BoardGeometry::At(QPointF point) const {
  const QPointF onBoard = point - BoardRect().topLeft();
  const int column = qFloor(onBoard.x() / side_);
  const int row = qFloor(onBoard.y() / side_);
  if (column < 0 || column >= kSide || row < 0 || row >= kSide) return std::nullopt;
  const double unit = static_cast<double>(kCellUnits) / side_;
  return CellPoint{CellAt(row, column), (onBoard.x() - column * side_) * unit,
                   (onBoard.y() - row * side_) * unit};
}

}  // namespace tessel
