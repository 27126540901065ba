#include "paper/board_drawing.h"

#include <algorithm>
#include <string>

#include "core/cage_edges.h"
#include "paper/area_band.h"
#include "paper/cell_outline.h"
#include "paper/mark_drawing.h"
#include "paper/ringed_digits.h"
#include "paper/text.h"
#include "paper/tints.h"

namespace tessel::paper {

namespace {

// By the cell side.
constexpr double kWall = 1.0 / 14;
constexpr double kFrame = 1.0 / 9;
constexpr double kThinLine = 1.0 / 55;
constexpr double kCaptionBand = 0.62;
constexpr double kBand = 0.085;

constexpr double kMinThinLine = 0.35;  // points: finer ones get lost on paper
constexpr double kThinLineGrey = 0.55;

// The names that hints give to rows.
constexpr std::string_view kRowLetters = "ABCDEFGHJ";

struct Colour {
  double red;
  double green;
  double blue;
};
constexpr Colour kHighlight{1.0, 0.93, 0.62};
using Grounds = std::array<Colour, kTints>;
constexpr Grounds kGreyGrounds{
    {{1, 1, 1}, {0.93, 0.93, 0.93}, {0.865, 0.865, 0.865}, {0.8, 0.8, 0.8}}};
constexpr Grounds kColourGrounds{
    {{1.0, 0.965, 0.82}, {0.86, 0.925, 0.985}, {0.885, 0.95, 0.86}, {0.985, 0.89, 0.88}}};

class Drawing {
 public:
  Drawing(cairo_t* context, const Fonts& fonts, const BoardPicture& picture,
          const BoardStyle& style, Point corner)
      : context_(context),
        fonts_(fonts),
        picture_(picture),
        style_(style),
        grid_{corner, CellSideOf(style, picture.captions)} {
    const double before = (kFrame / 2 + (picture.captions ? kCaptionBand : 0.0)) * grid_.side;
    grid_.origin = {corner.x + before, corner.y + before};
  }

  void Draw() const {
    if (style_.tint != Tint::kNone) FillTints();
    FillHighlights();
    DrawBands();
    DrawThinLines();
    DrawMarks(context_, fonts_, picture_, grid_);
    DrawDigits();
    DrawWalls();
    if (picture_.captions) DrawCaptions();
  }

 private:
  void SetColour(const Colour& colour) const {
    cairo_set_source_rgb(context_, colour.red, colour.green, colour.blue);
  }
  void SetGrey(double grey) const { SetColour({grey, grey, grey}); }

  void FillCells(CellSet cells, const Colour& colour) const;
  void FillTints() const;
  void FillHighlights() const;
  void DrawBands() const;
  void DrawThinLines() const;
  void DrawDigits() const;
  void DrawCellDigits(Face face, CellSet cells) const;
  void DrawWalls() const;
  void DrawCaptions() const;

  cairo_t* context_;
  const Fonts& fonts_;
  const BoardPicture& picture_;
  const BoardStyle& style_;
  CellGrid grid_;
};

void Drawing::FillCells(CellSet cells, const Colour& colour) const {
  AddCells(context_, cells, grid_);
  SetColour(colour);
  cairo_fill(context_);
}

void Drawing::FillTints() const {
  const auto tints = TintsOf(picture_.layout);
  if (!tints) return;
  const Grounds& grounds = style_.tint == Tint::kGrey ? kGreyGrounds : kColourGrounds;
  for (int tint = 0; tint < kTints; ++tint) {
    CellSet cells;
    for (int cell = 0; cell < kCellCount; ++cell) {
      const bool tinted = (*tints)[picture_.layout.CageOf(cell) - 1] == tint;
      if (tinted) cells = cells | CellSet::Of(cell);
    }
    FillCells(cells, grounds[tint]);
  }
}

// The inner frame tells highlighted cells where the ground's colour is not to be seen.
void Drawing::FillHighlights() const {
  FillCells(picture_.highlighted, kHighlight);
  const double inset = (kWall / 2 + 0.045) * grid_.side;
  ForEach(picture_.highlighted, [&](int cell) {
    const Box box = grid_.BoxOf(cell);
    cairo_rectangle(context_, box.x + inset, box.y + inset, grid_.side - 2 * inset,
                    grid_.side - 2 * inset);
  });
  SetGrey(0.45);
  cairo_set_line_width(context_, 0.02 * grid_.side);
  cairo_stroke(context_);
}

void Drawing::DrawBands() const {
  bool dashed = false;
  for (const CellSet area : picture_.areas) {
    DrawBand(context_, area, grid_, {kBand * grid_.side, kWall * grid_.side, dashed});
    dashed = true;
  }
}

void Drawing::DrawThinLines() const {
  const double length = kSide * grid_.side;
  for (int line = 1; line < kSide; ++line) {
    const double at = line * grid_.side;
    cairo_move_to(context_, grid_.origin.x + at, grid_.origin.y);
    cairo_rel_line_to(context_, 0, length);
    cairo_move_to(context_, grid_.origin.x, grid_.origin.y + at);
    cairo_rel_line_to(context_, length, 0);
  }
  SetGrey(kThinLineGrey);
  cairo_set_line_cap(context_, CAIRO_LINE_CAP_BUTT);
  cairo_set_line_width(context_, std::max(kMinThinLine, kThinLine * grid_.side));
  cairo_stroke(context_);
}

void Drawing::DrawDigits() const {
  DrawCellDigits(Face::kBold, picture_.givens);
  DrawCellDigits(Face::kRegular, kAllCells - picture_.givens);
  ForEach(picture_.placed,
          [&](int cell) { AddRing(context_, grid_.CentreOf(cell), 0.4 * grid_.side); });
  StrokeRings(context_, grid_.side);
}

void Drawing::DrawCellDigits(Face face, CellSet cells) const {
  DigitRun run(fonts_, face, style_.digitSize * grid_.side);
  ForEach(cells, [&](int cell) {
    if (picture_.digits[cell] != 0) run.Add(picture_.digits[cell], grid_.CentreOf(cell));
  });
  run.Show(context_, 0.0);
}

void Drawing::DrawWalls() const {
  for (const WallRun& run : CageWallRuns(picture_.layout)) {
    cairo_move_to(context_, grid_.origin.x + run.from.column * grid_.side,
                  grid_.origin.y + run.from.row * grid_.side);
    cairo_line_to(context_, grid_.origin.x + run.to.column * grid_.side,
                  grid_.origin.y + run.to.row * grid_.side);
  }
  SetGrey(0);
  cairo_set_line_cap(context_, CAIRO_LINE_CAP_SQUARE);
  cairo_set_line_width(context_, kWall * grid_.side);
  cairo_stroke(context_);
  cairo_rectangle(context_, grid_.origin.x, grid_.origin.y, kSide * grid_.side, kSide * grid_.side);
  cairo_set_line_join(context_, CAIRO_LINE_JOIN_MITER);
  cairo_set_line_width(context_, kFrame * grid_.side);
  cairo_stroke(context_);
}

void Drawing::DrawCaptions() const {
  const TextStyle text{Face::kRegular, 0.36 * grid_.side, 0.25};
  const double half = fonts_.DigitHeight(text.face) * text.size / 2;
  const double away = (kFrame / 2 + kCaptionBand / 2) * grid_.side;
  for (int line = 0; line < kSide; ++line) {
    const double middle = (line + 0.5) * grid_.side;
    DrawText(context_, fonts_, std::string(1, kRowLetters[line]), text,
             {grid_.origin.x - away, grid_.origin.y + middle + half}, Align::kCentre);
    DrawText(context_, fonts_, std::to_string(line + 1), text,
             {grid_.origin.x + middle, grid_.origin.y - away + half}, Align::kCentre);
  }
}

}  // namespace

double CellSideOf(const BoardStyle& style, bool captions) {
  return style.side / (kSide + kFrame + (captions ? kCaptionBand : 0.0));
}

void DrawBoard(cairo_t* context, const Fonts& fonts, const BoardPicture& picture,
               const BoardStyle& style, Point corner) {
  cairo_save(context);
  UseOutlinesAsTheyAre(context);
  Drawing(context, fonts, picture, style, corner).Draw();
  cairo_restore(context);
}

}  // namespace tessel::paper
