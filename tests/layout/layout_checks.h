// What every finished layout must be.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "core/form.h"
#include "core/game_state.h"

namespace tessel {

// The number of cells of the cage that can be reached from its first cell.
inline int ReachedInCage(const GameState& state, int cage) {
  std::array<bool, kCellCount> seen{};
  std::vector<int> open{state.CageCells[cage - 1][0]};
  int reached = 0;
  while (!open.empty()) {
    const int cell = open.back();
    open.pop_back();
    if (seen[cell] || state.CageOfCell[cell] != cage) continue;
    seen[cell] = true;
    ++reached;
    if (ColumnOf(cell) < 8) open.push_back(cell + 1);
    if (ColumnOf(cell) > 0) open.push_back(cell - 1);
    if (RowOf(cell) < 8) open.push_back(cell + 9);
    if (RowOf(cell) > 0) open.push_back(cell - 9);
  }
  return reached;
}

// Nine connected cages of nine; CageCells lists them in ascending order.
inline testing::AssertionResult IsLayout(const GameState& state) {
  for (int cage = 1; cage <= 9; ++cage) {
    const HouseCells& cells = state.CageCells[cage - 1];
    for (const int cell : cells) {
      if (state.CageOfCell[cell] != cage) return testing::AssertionFailure() << "cell " << cell;
    }
    if (!std::is_sorted(cells.begin(), cells.end(), std::less_equal<>())) {
      return testing::AssertionFailure() << "cage " << cage << " is not ascending";
    }
    if (ReachedInCage(state, cage) != 9) {
      return testing::AssertionFailure() << "cage " << cage << " is not connected";
    }
  }
  return testing::AssertionSuccess();
}

// Every cell and its partner under a half turn lie in cages whose numbers add up to 10.
inline testing::AssertionResult IsRotational(const GameState& state) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (state.CageOfCell[cell] + state.CageOfCell[HalfTurnOf(cell)] != 10) {
      return testing::AssertionFailure() << "cell " << cell;
    }
  }
  return testing::AssertionSuccess();
}

inline testing::AssertionResult IsPaintedInCageColours(const GameState& state, const Form& form) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    const DisplayedCell& look = form.Cell(cell);
    if (!look.opaque || look.background != kCageColours[state.CageOfCell[cell] - 1]) {
      return testing::AssertionFailure() << "cell " << cell;
    }
  }
  return testing::AssertionSuccess();
}

}  // namespace tessel
