// How well one colour can be told from another, as the Web Content Accessibility Guidelines count
// it.
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

namespace tessel {

// 0 for black to 1 for white.
inline double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

// From 1 to 21.
inline double Contrast(const QColor& one, const QColor& other) {
  // A list is copied; std::minmax of two temporaries would give references to what has gone.
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace tessel
