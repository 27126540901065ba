// Boards of 81 numbers, one for each cell 0..80, row by row.
#pragma once

#include <array>
#include <cassert>
#include <cstdint>

#include "core/cell.h"

namespace tessel {

template <typename T>
using PerCell = std::array<T, kCellCount>;

using Grid = PerCell<std::uint8_t>;         // digit 1..9, or 0 for an empty cell
using CageNumbers = PerCell<std::uint8_t>;  // cage 1..9 of each cell
using CellDigits = PerCell<std::int16_t>;   // digit 1..9, or 0 for none
using MaskBoard = PerCell<Mask>;            // a candidate mask for each cell

// The same 81 numbers, widened.
constexpr CellDigits DigitsOf(const Grid& grid) {
  CellDigits digits{};
  for (int cell = 0; cell < kCellCount; ++cell) digits[cell] = grid[cell];
  return digits;
}
// The same 81 numbers, narrowed: `digits` must be 0..9.
constexpr Grid GridOf(const CellDigits& digits) {
  Grid grid{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    assert(digits[cell] >= 0 && digits[cell] <= kSide);
    grid[cell] = static_cast<std::uint8_t>(digits[cell]);
  }
  return grid;
}

}  // namespace tessel
