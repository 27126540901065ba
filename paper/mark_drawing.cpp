#include "paper/mark_drawing.h"

#include "paper/ringed_digits.h"

namespace tessel::paper {

namespace {

constexpr int kKeypad = 3;  // rows and columns of it

// By the cell side.
constexpr double kSize = 0.24;
constexpr double kStep = 0.3;
constexpr double kRing = 0.145;
constexpr double kReach = 0.1;  // of a cross, from its middle

constexpr double kGrey = 0.2;

// Where the keypad has that digit.
Point CentreOf(const CellGrid& grid, int cell, int digit) {
  const int row = (digit - 1) / kKeypad - 1;
  const int column = (digit - 1) % kKeypad - 1;
  const Point centre = grid.CentreOf(cell);
  return {centre.x + column * kStep * grid.side, centre.y + row * kStep * grid.side};
}

// Calls `visit` with the digit and the centre of each mark, line after line of the page as text
// goes: a line that goes on needs no new place in a PDF.
template <typename Visit>
void ForEachMark(const CellGrid& grid, const MaskBoard& marks, const Visit& visit) {
  for (int line = 0; line < kSide * kKeypad; ++line) {
    for (int place = 0; place < kSide * kKeypad; ++place) {
      const int cell = CellAt(line / kKeypad, place / kKeypad);
      const int digit = line % kKeypad * kKeypad + place % kKeypad + 1;
      if (Holds(marks[cell], digit)) visit(digit, CentreOf(grid, cell, digit));
    }
  }
}

struct Kinds {
  MaskBoard plain{};
  MaskBoard reasons{};
  MaskBoard struck{};  // among the others
};

Kinds KindsOf(const BoardPicture& picture) {
  Kinds kinds;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (picture.digits[cell] != 0) continue;
    kinds.reasons[cell] = picture.reasons[cell];
    kinds.struck[cell] = picture.struck[cell];
    const int shown = picture.marks[cell] | picture.struck[cell];
    kinds.plain[cell] = static_cast<Mask>(shown & ~picture.reasons[cell]);
  }
  return kinds;
}

void AddCross(cairo_t* context, Point centre, double reach) {
  for (const double slope : {-1.0, 1.0}) {
    cairo_move_to(context, centre.x - reach, centre.y - slope * reach);
    cairo_line_to(context, centre.x + reach, centre.y + slope * reach);
  }
}

void StrokeCrosses(cairo_t* context, double side) {
  cairo_set_source_rgb(context, 0.8, 0.08, 0.05);
  cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_width(context, kFineStroke * side);
  cairo_stroke(context);
}

}  // namespace

void DrawMarks(cairo_t* context, const Fonts& fonts, const BoardPicture& picture,
               const CellGrid& grid) {
  const Kinds kinds = KindsOf(picture);
  DigitRun plain(fonts, Face::kRegular, kSize * grid.side);
  DigitRun bold(fonts, Face::kBold, kSize * grid.side);
  ForEachMark(grid, kinds.plain, [&](int digit, Point centre) { plain.Add(digit, centre); });
  ForEachMark(grid, kinds.reasons, [&](int digit, Point centre) {
    bold.Add(digit, centre);
    AddRing(context, centre, kRing * grid.side);
  });
  StrokeRings(context, grid.side);
  plain.Show(context, kGrey);
  bold.Show(context, 0.0);
  ForEachMark(grid, kinds.struck,
              [&](int, Point centre) { AddCross(context, centre, kReach * grid.side); });
  StrokeCrosses(context, grid.side);
}

}  // namespace tessel::paper
