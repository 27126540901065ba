#include "shell/qt/board_painter.h"

#include <QFontMetrics>
#include <QPainter>
#include <QtMath>
#include <algorithm>

#include "core/cage_edges.h"
#include "shell/board_clicks.h"
#include "shell/qt/board_outlines.h"

namespace tessel {

namespace {

constexpr double kDigitShare = 0.6;  // of the cell side
const QColor kInnerLine(0, 0, 0, 80);

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

// The box of text that is centred by advance and cap height, so that equal digits sit equally
// whatever their shape.
QRect CentredBox(const QFontMetrics& metrics, const QRect& place, const QString& text) {
  const int width = metrics.horizontalAdvance(text);
  const int height = metrics.capHeight();
  return {place.left() + (place.width() - width) / 2, place.top() + (place.height() - height) / 2,
          width, height};
}

void DrawInBox(QPainter& painter, const QRect& box, const QString& text) {
  painter.drawText(box.left(), box.top() + box.height(), text);
}

void DrawCentred(QPainter& painter, const QRect& place, const QString& text) {
  DrawInBox(painter, CentredBox(QFontMetrics(painter.font()), place, text), text);
}

QString DigitText(int digit) {
  return QString(QChar('0' + digit));
}

// The row or column whose caption alone is red.
std::optional<int> OnlyRed(const auto& captionOf) {
  std::optional<int> found;
  for (int line = 0; line < kSide; ++line) {
    if (captionOf(line) != kHighlightRed) continue;
    if (found) return std::nullopt;
    found = line;
  }
  return found;
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
      markFont_(SizedFont(font, geometry.MarkPixels(), false)),
      captionFont_(SizedFont(font, geometry.CaptionPixels(), true)) {}

int BoardPainter::CageOf(int cell) const {
  return CageOfColour(form_.Cell(cell).PaintedBackground());
}

QColor BoardPainter::Shown(Rgb colour) const {
  const int cage = CageOfColour(colour);
  return ToColour(cage == 0 ? colour : cageColours_[static_cast<std::size_t>(cage - 1)]);
}

void BoardPainter::Paint(QPainter& painter, const QRegion& region,
                         const BoardHighlights& highlights) const {
  painter.setClipRegion(region);
  if (!region.subtracted(geometry_.BoardRect()).isEmpty()) PaintCaptions(painter);
  const auto touched = [&](int cell) { return region.intersects(geometry_.CellRect(cell)); };
  if (highlights.frame) PaintFrame(painter, *highlights.frame);
  for (int cell = 0; cell < kCellCount; ++cell) {
    const Rgb ground = form_.Cell(cell).PaintedBackground();
    if (touched(cell)) painter.fillRect(geometry_.CellRect(cell), Shown(ground));
  }
  PaintLines(painter, region, Line::kThin);
  if (highlights.digit && IsBoardOpen(form_)) PaintSameDigits(painter, *highlights.digit);
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (touched(cell)) PaintText(painter, cell);
  }
  PaintLines(painter, region, Line::kBorder);
  PaintHighlights(painter, highlights);
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
    painter.setPen(Shown(mark.colour));
    DrawInBox(painter, MarkInk(cell, digit), DigitText(digit));
  }
}

// In the middle of its square, or as near to it as the lines leave room.
QRect BoardPainter::MarkInk(int cell, int digit) const {
  QFont font = markFont_;
  font.setBold(form_.Mark(cell, digit).bold);
  QRect box = CentredBox(QFontMetrics(font), geometry_.MarkRect(cell, digit), DigitText(digit));
  const int reach = geometry_.LineReach();
  const QRect room = geometry_.CellRect(cell).adjusted(reach, reach, -reach, -reach);
  box.moveLeft(std::clamp(box.left(), room.left(), room.right() + 1 - box.width()));
  box.moveTop(std::clamp(box.top(), room.top(), room.bottom() + 1 - box.height()));
  return box;
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
  const auto sameCage = [this](int a, int b) { return CageOf(a) == CageOf(b); };
  const auto isBorder = [&](CellSide side) { return IsWall(cell, side, sameCage); };
  const auto atFrame = [&](CellSide side) { return !NeighbourBeyond(cell, side); };
  if (isBorder(CellSide::kLeft) == border) drawVertical(place.left());
  if (isBorder(CellSide::kTop) == border) drawHorizontal(place.top());
  if (border && atFrame(CellSide::kRight)) drawVertical(place.left() + place.width());
  if (border && atFrame(CellSide::kBottom)) drawHorizontal(place.top() + place.height());
}

// In the margin of the panel; the border of the board covers its inner edge.
void BoardPainter::PaintFrame(QPainter& painter, const QColor& colour) const {
  const int reach = geometry_.PanelRect().right() - geometry_.BoardRect().right();
  painter.fillRect(geometry_.BoardRect().adjusted(-reach, -reach, reach, reach), colour);
}

QRegion BoardPainter::RegionOf(const auto& contains) const {
  QRegion region;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (contains(cell)) region += geometry_.CellRect(cell);
  }
  return region;
}

void BoardPainter::PaintHighlights(QPainter& painter, const BoardHighlights& highlights) const {
  BoardOutlines outlines(painter, geometry_);
  if (!IsBoardOpen(form_)) {
    if (highlights.focused) outlines.FocusBoard();
    return;
  }
  if (highlights.active && !highlights.digit) PaintLinesOf(painter, *highlights.active);
  if (highlights.active) PaintCageOf(painter, *highlights.active);
  if (const auto hinted = HintedCell()) outlines.Hint(*hinted);
  if (highlights.focused)
    outlines.Focus(*highlights.focused, highlights.refused ? kRefusalRing : kFocusRing);
  if (highlights.target) PaintTarget(painter, *highlights.target);
}

void BoardPainter::PaintLinesOf(QPainter& painter, int active) const {
  BoardOutlines outlines(painter, geometry_);
  outlines.Surround(RegionOf([&](int cell) { return RowOf(cell) == RowOf(active); }));
  outlines.Surround(RegionOf([&](int cell) { return ColumnOf(cell) == ColumnOf(active); }));
}

void BoardPainter::PaintCageOf(QPainter& painter, int active) const {
  BoardOutlines outlines(painter, geometry_);
  outlines.Surround(RegionOf([&](int cell) { return CageOf(cell) == CageOf(active); }));
  outlines.Point(active);
}

// Under the digits and marks, round which they run.
void BoardPainter::PaintSameDigits(QPainter& painter, int digit) const {
  BoardOutlines outlines(painter, geometry_);
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (form_.Cell(cell).text == digit) outlines.RingDigit(cell);
    if (IsMarkShown(form_, cell, digit)) outlines.RingMark(MarkInk(cell, digit));
  }
}

// Over the borders: at the cell's edge the ring has no other room.
void BoardPainter::PaintTarget(QPainter& painter, const TargetMark& target) const {
  const QRect place = geometry_.MarkRect(target.cell, target.digit);
  const int line = geometry_.LineWidth();
  const int air = place.width() / 16;
  const QRect outer = place.adjusted(air, air, -air, -air);
  const QRect ring = outer.adjusted(line, line, -line, -line);
  const QRect inner = ring.adjusted(line, line, -line, -line);
  const QColor ground = Shown(form_.Cell(target.cell).PaintedBackground());
  painter.fillRect(outer, Qt::white);
  painter.fillRect(ring, Qt::black);
  if (!target.pressed) painter.fillRect(inner, ground);
  painter.setFont(markFont_);
  painter.setPen(target.pressed ? QColor(Qt::white) : QColor(Qt::black));
  DrawInBox(painter, MarkInk(target.cell, target.digit), DigitText(target.digit));
}

// Where the red row and the red column of a hint cross, if there is one of each.
std::optional<int> BoardPainter::HintedCell() const {
  const auto row = OnlyRed([this](int line) { return form_.LabelRow(line); });
  const auto column = OnlyRed([this](int line) { return form_.LabelColumn(line); });
  if (!row || !column) return std::nullopt;
  return CellAt(*row, *column);
}

}  // namespace tessel
