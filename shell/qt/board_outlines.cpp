#include "shell/qt/board_outlines.h"

#include <QPainter>
#include <algorithm>

namespace tessel {

namespace {

// The places at least `by` pixels inside the outline of `cells`; outside it where `by` is negative.
// A cell is so much larger than that that the four diagonal shifts find every place near the
// outline.
QRegion Shrunk(const QRegion& cells, int by) {
  const QRegion shifted[] = {cells.translated(by, by), cells.translated(-by, -by),
                             cells.translated(by, -by), cells.translated(-by, by)};
  return by < 0 ? shifted[0] | shifted[1] | shifted[2] | shifted[3]
                : shifted[0] & shifted[1] & shifted[2] & shifted[3];
}

}  // namespace

// Paints what lies from `from` to `to` pixels inside the outline of `cells`.
void BoardOutlines::Ring(const QRegion& cells, int from, int to, const QColor& colour) {
  for (const QRect& part : Shrunk(cells, from) - Shrunk(cells, to)) painter_.fillRect(part, colour);
}

void BoardOutlines::Surround(const QRegion& cells) {
  const int reach = geometry_.LineReach();
  const int white = std::max(geometry_.LineWidth(), reach / 2);
  Ring(cells, 0, reach - white, Qt::black);
  Ring(cells, reach - white, reach, Qt::white);
}

void BoardOutlines::Point(int cell) {
  const QRect place = geometry_.CellRect(cell);
  const int reach = geometry_.LineReach();
  Ring(place, -geometry_.LineWidth(), 0, Qt::black);
  Ring(place, 0, reach, Qt::white);
}

void BoardOutlines::Focus(int cell, const QColor& colour) {
  const QRect place = geometry_.CellRect(cell);
  const int reach = geometry_.LineReach();
  const int line = geometry_.LineWidth();
  Ring(place, -reach, -reach + line, Qt::white);
  Ring(place, -reach + line, reach, colour);
}

void BoardOutlines::FocusBoard() {
  const int outside = geometry_.BorderWidth() / 2;
  Ring(geometry_.BoardRect(), -outside - 2 * geometry_.LineWidth(), -outside, kFocusRing);
}

void BoardOutlines::Hint(int cell) {
  const QRect place = geometry_.CellRect(cell);
  const int reach = geometry_.LineReach();
  const int line = geometry_.LineWidth();
  Ring(place, reach - 3 * line, reach - line, Qt::red);
  Ring(place, reach - line, reach, Qt::white);
}

// A line of that width just inside `place`.
void BoardOutlines::DrawRounded(const QRectF& place, double width, double radius) {
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setPen(QPen(Qt::black, width));
  painter_.setBrush(Qt::NoBrush);
  const double half = width / 2;
  painter_.drawRoundedRect(place.adjusted(half, half, -half, -half), radius, radius);
  painter_.setRenderHint(QPainter::Antialiasing, false);
}

void BoardOutlines::RingDigit(int cell) {
  const double air = geometry_.CellSide() / 12.0;
  const QRectF place = QRectF(geometry_.CellRect(cell)).adjusted(air, air, -air, -air);
  const double width = std::max(2.0 * geometry_.LineWidth(), geometry_.CellSide() / 30.0);
  DrawRounded(place, width, place.width() / 2);
}

// As far from the ink as the mark's square allows, and of two lines where there is room.
void BoardOutlines::RingMark(const QRect& ink) {
  const double third = geometry_.CellSide() / 3.0;
  const double air = std::max(2.0 * geometry_.LineWidth(), third / 6.5);
  const double width = std::max(1.0 * geometry_.LineWidth(), third / 12);
  DrawRounded(QRectF(ink).adjusted(-air, -air, air, air), width, third / 4);
}

}  // namespace tessel
