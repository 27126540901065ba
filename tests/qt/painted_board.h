// A form of the test's making, painted into an image.
#pragma once

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <set>

#include "core/form.h"
#include "core/game_state.h"
#include "shell/qt/board_painter.h"
#include "tests/fakes/recording_view.h"

namespace tessel {

inline QColor ColourOf(Rgb colour) {
  return {colour.red, colour.green, colour.blue};
}

// Every colour that occurs in that part of the image.
inline std::set<QRgb> ColoursIn(const QImage& image, const QRect& part) {
  std::set<QRgb> colours;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) colours.insert(image.pixel(x, y));
  }
  return colours;
}

inline int CountIn(const QImage& image, const QRect& part, QColor colour) {
  int count = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) count += image.pixelColor(x, y) == colour;
  }
  return count;
}

// How dark a part is, whatever the smoothing.
inline long Ink(const QImage& image, const QRect& part) {
  long ink = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) ink += 255 - qGray(image.pixel(x, y));
  }
  return ink;
}

struct PaintedBoard {
  explicit PaintedBoard(int side = 600, double scale = 1.0)
      : geometry(QSize(side, side), scale, 96.0 / 72.0 * scale) {
    FillTables(state);
  }

  // The regular boxes, painted, with all marks hidden in their colours.
  void PaintRegularCages() {
    for (int cell = 0; cell < kCellCount; ++cell) {
      const int cage = RowOf(cell) / 3 * 3 + ColumnOf(cell) / 3;
      form.SetCellOpaque(cell, true);
      form.SetCellBackground(cell, kCageColours[static_cast<std::size_t>(cage)]);
      form.SetMarksColour(cell, kCageColours[static_cast<std::size_t>(cage)]);
    }
  }

  // Clicks act now.
  void Open() { form.ShowSolveButtons(true); }

  QImage Paint(const BoardHighlights& highlights = {}) const {
    QImage image(geometry.PanelRect().bottomRight().x() + 1,
                 geometry.PanelRect().bottomRight().y() + 1, QImage::Format_RGB32);
    image.fill(Qt::gray);
    Paint(image, image.rect(), highlights);
    return image;
  }
  void Paint(QImage& image, const QRegion& region, const BoardHighlights& highlights = {}) const {
    QPainter painter(&image);
    Painter().Paint(painter, region, highlights);
  }
  BoardPainter Painter() const {
    BoardPainter painter(form, state, geometry, QGuiApplication::font());
    painter.SetCageColours(cageColours);
    return painter;
  }
  // The part of the cell that borders and lines do not reach.
  QRect Interior(int cell) const {
    const int border = (geometry.BorderWidth() + 1) / 2;
    return geometry.CellRect(cell).adjusted(border, border, -border, -border);
  }

  RecordingView view;
  Form form{view};
  GameState state;
  BoardGeometry geometry;
  CageColours cageColours = kCageColours;
};

}  // namespace tessel
