// Digits in the middle of their places, and rings around such places.
#pragma once

#include <vector>

#include "paper/fonts.h"

namespace tessel::paper {

// Digits of one face and size, gathered to be shown at once: for Cairo, a change of font or colour
// costs more than many glyphs.
class DigitRun {
 public:
  // `size` in points.
  DigitRun(const Fonts& fonts, Face face, double size) : fonts_(fonts), face_(face), size_(size) {}

  // `digit` is 0..9.
  void Add(int digit, Point centre);
  // Grey from 0, black, to 1.
  void Show(cairo_t* context, double grey) const;

 private:
  const Fonts& fonts_;
  Face face_;
  double size_;
  std::vector<cairo_glyph_t> glyphs_;
};

// Adds a ring to the path; StrokeRings draws all of the path, in a width and colour of their own on
// a board of cells with that side.
void AddRing(cairo_t* context, Point centre, double radius);
void StrokeRings(cairo_t* context, double side);

// Of rings and crosses, by the cell side.
inline constexpr double kFineStroke = 1.0 / 42;

}  // namespace tessel::paper
