// Lines and paragraphs of text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "paper/fonts.h"

namespace tessel::paper {

struct TextStyle {
  Face face = Face::kRegular;
  double size = 10.0;  // points
  double grey = 0.0;   // 0 black, 1 white
};

enum class Align : std::uint8_t { kLeft, kCentre, kRight };

double WidthOf(const Fonts& fonts, std::string_view text, const TextStyle& style);

// `at` is the left end, the middle or the right end of the baseline.
void DrawText(cairo_t* context, const Fonts& fonts, std::string_view text, const TextStyle& style,
              Point at, Align align = Align::kLeft);

// The text in lines no wider than `width`: parted at blanks, and inside words that are wider alone.
std::vector<std::string> Wrapped(const Fonts& fonts, std::string_view text, const TextStyle& style,
                                 double width);

// The text, or as much of it as `width` holds with an ellipsis behind.
std::string Shortened(const Fonts& fonts, std::string_view text, const TextStyle& style,
                      double width);

}  // namespace tessel::paper
