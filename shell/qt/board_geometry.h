// Where the parts of the board lie for a given size of its widget.
#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>
#include <optional>

#include "core/cell.h"

namespace tessel {

// A place on the board in the units that the logic uses, 0..375 (exclusive) inside the cell.
struct CellPoint {
  int cell = 0;
  double x = 0.0;
  double y = 0.0;
};

// Everything is in device pixels, so that lines stay sharp at fractional scales too. The cell side
// is divisible by 3: a mark's square is a whole number of pixels.
class BoardGeometry {
 public:
  // `area` is the widget's size in device pixels, `scale` the device pixels of a logical one, and
  // `pixelsPerPoint` the device pixels of a typographic point.
  BoardGeometry(QSize area, double scale, double pixelsPerPoint);

  int CellSide() const { return side_; }
  // Of a cage's border; half of it lies on either side of the edge between two cells.
  int BorderWidth() const { return border_; }
  // Of the line between two cells of one cage.
  int LineWidth() const { return line_; }
  // How far lines may reach into a cell from its edge: the inner half of a border.
  int LineReach() const { return (border_ + 1) / 2; }
  // The pixel size of the marks' font: a larger share of small cells.
  int MarkPixels() const { return markPixels_; }
  // The pixel size of the row and column captions.
  int CaptionPixels() const { return captionPixels_; }

  QRect CellRect(int cell) const;
  // The 81 cells, without the outer half of the frame.
  QRect BoardRect() const;
  // The light ground on which captions and board lie.
  QRect PanelRect() const { return panel_; }
  QRect RowCaptionRect(int row) const;
  QRect ColumnCaptionRect(int column) const;
  QRect MarkRect(int cell, int digit) const;

  std::optional<CellPoint> At(QPointF point) const;

 private:
  void TakeSide(int side, double scale, double pixelsPerPoint);
  int PanelSide() const { return band_ + kSide * side_ + margin_; }

  int side_ = 0;
  int border_ = 0;
  int line_ = 0;
  int markPixels_ = 0;
  int captionPixels_ = 0;
  int band_ = 0;    // width of the captions' strip at the left and at the top
  int margin_ = 0;  // between the cells and the panel's right and lower edge
  QRect panel_;
};

}  // namespace tessel
