// A puzzle on the regular layout whose every digit can be told from its cell.
#pragma once

#include "core/puzzle_record.h"

namespace tessel {

// A complete grid: each row is the row above it, shifted by three (by one at a new band).
constexpr int KnownSolution(int cell) {
  return (3 * (RowOf(cell) % 3) + RowOf(cell) / 3 + ColumnOf(cell)) % kSide + 1;
}

constexpr bool IsKnownGiven(int cell) {
  return (RowOf(cell) + ColumnOf(cell)) % 3 == 0;
}

constexpr int RegularCage(int cell) {
  return 1 + 3 * (RowOf(cell) / 3) + ColumnOf(cell) / 3;
}

// Whether two different cells share a row, a column or a box.
constexpr bool ArePeers(int a, int b) {
  return a != b &&
         (RowOf(a) == RowOf(b) || ColumnOf(a) == ColumnOf(b) || RegularCage(a) == RegularCage(b));
}

// The digits that no given among the cell's peers excludes.
constexpr Mask KnownCandidates(int cell) {
  Mask mask = IsKnownGiven(cell) ? Mask{0} : kAllCandidates;
  for (int peer = 0; peer < kCellCount; ++peer) {
    if (IsKnownGiven(peer) && ArePeers(cell, peer)) {
      mask = Without(mask, BitOf(KnownSolution(peer)));
    }
  }
  return mask;
}

constexpr PuzzleRecord KnownPuzzle() {
  PuzzleRecord record;
  for (std::size_t i = 0; i < kCellCount; ++i) {
    const int cell = static_cast<int>(i);
    record.Solution[i] = static_cast<std::uint8_t>(KnownSolution(cell));
    record.Board[i] = IsKnownGiven(cell) ? record.Solution[i] : std::uint8_t{0};
    record.CageMap[i] = static_cast<std::uint8_t>(RegularCage(cell));
  }
  return record;
}

}  // namespace tessel
