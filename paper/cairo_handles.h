// Cairo's objects as values that are released by themselves.
#pragma once

#include <cairo.h>

#include <memory>

namespace tessel::paper {

struct CairoRelease {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
  void operator()(cairo_scaled_font_t* font) const { cairo_scaled_font_destroy(font); }
};

using Context = std::unique_ptr<cairo_t, CairoRelease>;
using Surface = std::unique_ptr<cairo_surface_t, CairoRelease>;
using Pattern = std::unique_ptr<cairo_pattern_t, CairoRelease>;
using ScaledFont = std::unique_ptr<cairo_scaled_font_t, CairoRelease>;

struct Point {
  double x = 0.0;
  double y = 0.0;
};

// x to the right, y down, in points.
struct Box {
  double x = 0.0;
  double y = 0.0;
  double width = 0.0;
  double height = 0.0;

  double Right() const { return x + width; }
  double Bottom() const { return y + height; }
};

}  // namespace tessel::paper
