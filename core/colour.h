// Colours that the logic gives to cells, marks and captions.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/cell.h"

namespace tessel {

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  friend constexpr bool operator==(Rgb, Rgb) = default;
};

inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kHighlightRed{255, 0, 0};
// The board where no cage is painted: cells with a transparent background show it.
inline constexpr Rgb kBoardColour{244, 243, 239};

// The background of cages 1..9, at index cage - 1. All nine must differ, from each other and from
// kBoardColour: the window draws a cage's border where the colours of two cells differ, and takes a
// mark in the colour of its ground for hidden.
inline constexpr std::array<Rgb, kSide> kCageColours{{{192, 192, 192},
                                                      {128, 128, 0},
                                                      {128, 128, 255},
                                                      {0, 255, 0},
                                                      {0, 255, 255},
                                                      {255, 128, 128},
                                                      {255, 128, 255},
                                                      {255, 255, 0},
                                                      {255, 255, 255}}};

static_assert([] {
  for (std::size_t i = 0; i < kCageColours.size(); ++i) {
    if (kCageColours[i] == kBoardColour) return false;
    for (std::size_t other = 0; other < i; ++other) {
      if (kCageColours[i] == kCageColours[other]) return false;
    }
  }
  return true;
}());

}  // namespace tessel
