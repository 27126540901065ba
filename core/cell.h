// Cells, digits and candidate masks: the addressing that every folder shares.
#pragma once

#include <bit>
#include <cassert>
#include <cstdint>

namespace tessel {

inline constexpr int kSide = 9;        // rows, columns, cages, and cells in each of them
inline constexpr int kCellCount = 81;  // cells are numbered 0..80, row by row
inline constexpr int kCentreCell = 40;

// The row and column, 0..8, of a cell 0..80, and the cell where they meet.
constexpr int RowOf(int cell) {
  return cell / kSide;
}
constexpr int ColumnOf(int cell) {
  return cell % kSide;
}
constexpr int CellAt(int row, int column) {
  return kSide * row + column;
}
// The cell that a half turn of the board brings to the place of `cell`.
constexpr int HalfTurnOf(int cell) {
  return kCellCount - 1 - cell;
}

// A candidate set: bit d-1 stands for digit d, 1..9.
using Mask = std::int16_t;
inline constexpr Mask kAllCandidates = 511;

// `digit`: 1..9.
constexpr Mask BitOf(int digit) {
  return static_cast<Mask>(1 << (digit - 1));
}
constexpr bool Holds(Mask mask, int digit) {
  return (mask & BitOf(digit)) != 0;
}
// 0..9.
constexpr int CandidateCount(Mask mask) {
  return std::popcount(static_cast<std::uint16_t>(mask));
}
// A digit 1..9; the mask must not be empty.
constexpr int LowestDigitOf(Mask mask) {
  assert(mask != 0);
  return std::countr_zero(static_cast<unsigned>(mask)) + 1;
}
// The digits of `mask` that `removed` does not hold.
constexpr Mask Without(Mask mask, Mask removed) {
  return static_cast<Mask>(mask & ~removed);
}

static_assert(RowOf(80) == 8 && ColumnOf(80) == 8 && RowOf(9) == 1 && ColumnOf(9) == 0);
static_assert(BitOf(9) == 256);

}  // namespace tessel
