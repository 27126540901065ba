// How boards are drawn.
#pragma once

#include <cstdint>

namespace tessel::paper {

enum class Tint : std::uint8_t { kNone, kGrey, kColour };

struct BoardStyle {
  double side = 200.0;  // points of the whole picture, with frame and captions
  Tint tint = Tint::kNone;
  double digitSize = 0.66;  // font size by cell side
};

}  // namespace tessel::paper
