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

using CageColours = std::array<Rgb, kSide>;  // index cage - 1

// The background of cages 1..9, as the logic writes it. All nine must differ, from each other and
// from kBoardColour: to the window they are the cages' names, whatever it paints the cages with.
inline constexpr CageColours kCageColours{{{192, 192, 192},
                                           {128, 128, 0},
                                           {128, 128, 255},
                                           {0, 255, 0},
                                           {0, 255, 255},
                                           {255, 128, 128},
                                           {255, 128, 255},
                                           {255, 255, 0},
                                           {255, 255, 255}}};

// The cage 1..9 that the colour is written for; 0 for any other colour.
constexpr int CageOfColour(Rgb colour) {
  for (std::size_t i = 0; i < kCageColours.size(); ++i) {
    if (kCageColours[i] == colour) return static_cast<int>(i) + 1;
  }
  return 0;
}

static_assert([] {
  for (std::size_t i = 0; i < kCageColours.size(); ++i) {
    if (CageOfColour(kCageColours[i]) != static_cast<int>(i) + 1) return false;
  }
  return CageOfColour(kBoardColour) == 0;
}());

}  // namespace tessel
