// Boards of 81 numbers, one for each cell 0..80, row by row.
#pragma once

#include <array>
#include <cstdint>

#include "core/cell.h"

namespace tessel {

template <typename T>
using PerCell = std::array<T, kCellCount>;

using Grid = PerCell<std::uint8_t>;         // digit 1..9, or 0 for an empty cell
using CageNumbers = PerCell<std::uint8_t>;  // cage 1..9 of each cell
using CellDigits = PerCell<std::int16_t>;   // digit 1..9, or 0 for none
using MaskBoard = PerCell<Mask>;            // a candidate mask for each cell

}  // namespace tessel
