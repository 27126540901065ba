#include "paper/ringed_digits.h"

#include <numbers>

namespace tessel::paper {

void DigitRun::Add(int digit, Point centre) {
  glyphs_.push_back({fonts_.DigitGlyph(face_, digit),
                     centre.x - fonts_.DigitWidth(face_) * size_ / 2,
                     centre.y + fonts_.DigitHeight(face_) * size_ / 2});
}

void DigitRun::Show(cairo_t* context, double grey) const {
  if (glyphs_.empty()) return;
  fonts_.Select(context, face_, size_);
  cairo_set_source_rgb(context, grey, grey, grey);
  cairo_show_glyphs(context, glyphs_.data(), static_cast<int>(glyphs_.size()));
}

void AddRing(cairo_t* context, Point centre, double radius) {
  cairo_new_sub_path(context);
  cairo_arc(context, centre.x, centre.y, radius, 0, 2 * std::numbers::pi);
}

void StrokeRings(cairo_t* context, double side) {
  cairo_set_source_rgb(context, 0.05, 0.3, 0.65);
  cairo_set_line_width(context, kFineStroke * side);
  cairo_stroke(context);
}

}  // namespace tessel::paper
