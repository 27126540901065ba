#include "shell/qt/board_painter.h"

#include <QFontMetrics>
#include <QPainter>
#include <QtMath>

#include "core/cage_edges.h"

namespace tessel {

namespace {

constexpr double kDigitShare = 0.6;  // of the cell side
constexpr double kMarkShare = 0.25;
const QColor kInnerLine(0, 0, 0, 80);
const QColor kFocusRing(0, 60, 200);

QColor ToColour(Rgb colour) {
  return {colour.red, colour.green, colour.blue};
}

QFont SizedFont(QFont font, int pixels, bool bold) {
  font.setPixelSize(pixels);
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferFullHinting);
  font.setStyleStrategy(QFont::NoSubpixelAntialias);
  return font;
}

// Centres by advance and cap height, so that equal digits sit equally whatever their shape.
void DrawCentred(QPainter& painter, const QRect& place, const QString& text) {
  const QFontMetrics metrics(painter.font());
  const int left = place.left() + (place.width() - metrics.horizontalAdvance(text)) / 2;
  const int baseline = place.top() + (place.height() + metrics.capHeight()) / 2;
  painter.drawText(left, baseline, text);
}

QString DigitText(int digit) {
  return QString(QChar('0' + digit));
}

// The band between `from` and `to` pixels inside the outline of `cells`. A cell is so much larger
// than the band that the four diagonal shifts find every place near the outline.
QRegion Ring(const QRegion& cells, int from, int to) {
  const auto shrunk = [&cells](int by) {
    return cells.translated(by, by) & cells.translated(-by, -by) & cells.translated(by, -by) &
           cells.translated(-by, by);
  };
  return shrunk(from) - shrunk(to);
}

void FillRegion(QPainter& painter, const QRegion& region, const QColor& colour) {
  for (const QRect& part : region) painter.fillRect(part, colour);
}

}  // namespace

bool IsEntry(const Form& form, const GameState& state, int cell) {
  return form.SolveButtonsVisible() && form.Cell(cell).text != 0 &&
         state.SavedPuzzle.Board[cell] == 0;
}

bool IsMarkShown(const Form& form, int cell, int digit) {
  const DisplayedMark& mark = form.Mark(cell, digit);
  return mark.visible && mark.colour != form.Cell(cell).PaintedBackground();
}

BoardPainter::BoardPainter(const Form& form, const GameState& state, const BoardGeometry& geometry,
                           const QFont& font)
    : form_(form),
      state_(state),
      geometry_(geometry),
      digitFont_(SizedFont(font, qRound(kDigitShare * geometry.CellSide()), true)),
      markFont_(SizedFont(font, qRound(kMarkShare * geometry.CellSide()), false)),
      captionFont_(SizedFont(font, geometry.CaptionPixels(), true)) {}

// Outlines lie under the text, so that they never hide a mark, and borders over everything.
void BoardPainter::Paint(QPainter& painter, const QRegion& region,
                         const BoardHighlights& highlights) const {
  painter.setClipRegion(region);
  if (!region.subtracted(geometry_.BoardRect()).isEmpty()) PaintCaptions(painter);
  const auto touched = [&](int cell) { return region.intersects(geometry_.CellRect(cell)); };
  for (int cell = 0; cell < kCellCount; ++cell) {
    const Rgb ground = form_.Cell(cell).PaintedBackground();
    if (touched(cell)) painter.fillRect(geometry_.CellRect(cell), ToColour(ground));
  }
  PaintLines(painter, region, Line::kThin);
  PaintHighlights(painter, highlights);
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (touched(cell)) PaintText(painter, cell);
  }
  PaintLines(painter, region, Line::kBorder);
}

void BoardPainter::PaintCaptions(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ToColour(kBoardColour));
  const double radius = geometry_.CaptionPixels() / 3.0;
  painter.drawRoundedRect(geometry_.PanelRect(), radius, radius);
  painter.setFont(captionFont_);
  for (int line = 0; line < kSide; ++line) {
    PaintCaption(painter, geometry_.RowCaptionRect(line), QChar(state_.AxisLetters[line]),
                 form_.LabelRow(line), {1, 0});
    PaintCaption(painter, geometry_.ColumnCaptionRect(line), QChar('1' + line),
                 form_.LabelColumn(line), {0, 1});
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
}

// A red caption also gets an arrow towards its line, for readers who cannot tell red from black.
void BoardPainter::PaintCaption(QPainter& painter, const QRect& place, QChar text, Rgb colour,
                                QPoint towardsLine) const {
  const int arrow = geometry_.CaptionPixels() / 3;
  const QPoint room = arrow * towardsLine;
  const QRect textPlace = place.adjusted(0, 0, -room.x(), -room.y());
  painter.setPen(ToColour(colour));
  DrawCentred(painter, textPlace, text);
  if (colour != kHighlightRed) return;
  const QPoint across = arrow * 3 / 4 * towardsLine.transposed();
  const QPoint half(textPlace.width() / 2 * towardsLine.x(),
                    textPlace.height() / 2 * towardsLine.y());
  const QPoint base = textPlace.center() + half;
  painter.setPen(Qt::NoPen);
  painter.setBrush(ToColour(colour));
  painter.drawPolygon(QPolygon({base + room, base - across, base + across}));
}

void BoardPainter::PaintText(QPainter& painter, int cell) const {
  PaintMarks(painter, cell);
  const int digit = form_.Cell(cell).text;
  if (digit == 0) return;
  QFont font = digitFont_;
  font.setBold(!IsEntry(form_, state_, cell));
  painter.setFont(font);
  painter.setPen(Qt::black);
  DrawCentred(painter, geometry_.CellRect(cell), DigitText(digit));
}

void BoardPainter::PaintMarks(QPainter& painter, int cell) const {
  for (int digit = 1; digit <= kSide; ++digit) {
    // Smoothed edges would leave a ghost of a mark painted in the colour of its ground.
    if (!IsMarkShown(form_, cell, digit)) continue;
    const DisplayedMark& mark = form_.Mark(cell, digit);
    QFont font = markFont_;
    font.setBold(mark.bold);
    painter.setFont(font);
    painter.setPen(ToColour(mark.colour));
    DrawCentred(painter, geometry_.MarkRect(cell, digit), DigitText(digit));
  }
}

void BoardPainter::PaintLines(QPainter& painter, const QRegion& region, Line line) const {
  const int reach = geometry_.BorderWidth();
  const QRect near = region.boundingRect().adjusted(-reach, -reach, reach, reach);
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (near.intersects(geometry_.CellRect(cell))) PaintEdges(painter, cell, line);
  }
}

// The edges of the cell's left and upper side, and of the frame's other two sides.
void BoardPainter::PaintEdges(QPainter& painter, int cell, Line line) const {
  const QRect place = geometry_.CellRect(cell);
  const bool border = line == Line::kBorder;
  const int width = border ? geometry_.BorderWidth() : geometry_.LineWidth();
  const int before = border ? width / 2 : 0;
  const int overlap = border ? width : 0;
  const QColor colour = border ? QColor(Qt::black) : kInnerLine;
  const auto drawVertical = [&](int x) {
    painter.fillRect(x - before, place.top() - before, width, place.height() + overlap, colour);
  };
  const auto drawHorizontal = [&](int y) {
    painter.fillRect(place.left() - before, y - before, place.width() + overlap, width, colour);
  };
  const auto sameGround = [this](int a, int b) {
    return form_.Cell(a).PaintedBackground() == form_.Cell(b).PaintedBackground();
  };
  const auto isBorder = [&](CellSide side) { return IsWall(cell, side, sameGround); };
  const auto atFrame = [&](CellSide side) { return !NeighbourBeyond(cell, side); };
  if (isBorder(CellSide::kLeft) == border) drawVertical(place.left());
  if (isBorder(CellSide::kTop) == border) drawHorizontal(place.top());
  if (border && atFrame(CellSide::kRight)) drawVertical(place.left() + place.width());
  if (border && atFrame(CellSide::kBottom)) drawHorizontal(place.top() + place.height());
}

QRegion BoardPainter::RegionOf(const auto& contains) const {
  QRegion region;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (contains(cell)) region += geometry_.CellRect(cell);
  }
  return region;
}

// Outlines only: a tint would uncover the marks that hide in the colour of their cage. Black and
// white side by side show on every cage colour.
void BoardPainter::PaintHighlights(QPainter& painter, const BoardHighlights& highlights) const {
  const int line = geometry_.LineWidth();
  const int inside = (geometry_.BorderWidth() + 1) / 2;
  const auto outline = [&](const QRegion& cells, int width, const QColor& outer,
                           const QColor& inner) {
    FillRegion(painter, Ring(cells, inside, inside + width), outer);
    FillRegion(painter, Ring(cells, inside + width, inside + width + line), inner);
  };
  if (highlights.active) {
    const int active = *highlights.active;
    const DisplayedCell& look = form_.Cell(active);
    outline(RegionOf([&](int cell) { return RowOf(cell) == RowOf(active); }), line, Qt::white,
            Qt::black);
    outline(RegionOf([&](int cell) { return ColumnOf(cell) == ColumnOf(active); }), line, Qt::white,
            Qt::black);
    if (look.opaque) {
      outline(RegionOf([&](int cell) {
                return form_.Cell(cell).PaintedBackground() == look.background;
              }),
              2 * line, Qt::white, Qt::black);
    }
    outline(geometry_.CellRect(active), 2 * line, Qt::white, Qt::black);
  }
  if (highlights.focused) {
    outline(geometry_.CellRect(*highlights.focused), 3 * line, kFocusRing, Qt::white);
  }
}

}  // namespace tessel
