// Cage layouts for the tests of the board model.
#pragma once

#include <algorithm>
#include <string_view>

#include "core/game_state.h"

namespace tessel {

// Nine connected cages, none of them a box.
inline constexpr std::string_view kIrregularLayout =
    "112222333"
    "111222333"
    "111122633"
    "444455663"
    "444555666"
    "745555666"
    "747889999"
    "777888999"
    "777888899";

inline CageNumbers CagesOf(std::string_view layout) {
  CageNumbers cages{};
  std::ranges::transform(layout, cages.begin(),
                         [](char cage) { return static_cast<std::uint8_t>(cage - '0'); });
  return cages;
}

// The layout of 81 cage numbers of any type; cages may lie in several parts.
template <typename Numbers>
Layout LayoutOfCages(const Numbers& numbers) {
  CageNumbers cages{};
  std::ranges::transform(numbers, cages.begin(),
                         [](auto cage) { return static_cast<std::uint8_t>(cage); });
  return Layout::FromCages(cages, Layout::Shape::kAny).value();
}

// A started state with the layout's cages.
inline GameState StateWithLayout(std::string_view layout) {
  GameState state;
  FillTables(state);
  SetLayout(state, Layout::FromCages(CagesOf(layout)).value());
  return state;
}

}  // namespace tessel
