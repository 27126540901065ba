// Cage layouts for the tests of the board model.
#pragma once

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

// A started state with the layout's cages.
inline GameState StateWithLayout(std::string_view layout) {
  GameState state;
  FillTables(state);
  for (int cell = 0; cell < kCellCount; ++cell) {
    state.CageOfCell[cell] = static_cast<std::int16_t>(layout[cell] - '0');
  }
  RebuildCageCells(state);
  return state;
}

}  // namespace tessel
