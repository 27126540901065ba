#include "paper/tints.h"

#include <algorithm>

#include "core/cage_edges.h"

namespace tessel::paper {

namespace {

using Neighbours = std::array<std::array<bool, kSide>, kSide>;

Neighbours NeighboursOf(const Layout& layout) {
  Neighbours neighbours{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (const CellSide side : kCellSides) {
      const std::optional<int> other = NeighbourBeyond(cell, side);
      if (!other || !IsCageWall(layout, cell, side)) continue;
      neighbours[layout.CageOf(cell) - 1][layout.CageOf(*other) - 1] = true;
    }
  }
  return neighbours;
}

// Tints the cages from `cage` on; gives up when an earlier choice leaves no tint.
bool Tint(const Neighbours& neighbours, std::array<int, kSide>& tints, int cage) {
  if (cage == kSide) return true;
  for (tints[cage] = 0; tints[cage] < kTints; ++tints[cage]) {
    bool clashes = false;
    for (int k = 0; k < cage; ++k) clashes |= neighbours[cage][k] && tints[k] == tints[cage];
    if (!clashes && Tint(neighbours, tints, cage + 1)) return true;
  }
  return false;
}

}  // namespace

std::optional<std::array<int, kSide>> TintsOf(const Layout& layout) {
  std::array<int, kSide> tints{};
  if (!Tint(NeighboursOf(layout), tints, 0)) return std::nullopt;
  return tints;
}

}  // namespace tessel::paper
