// One complete state of the search, copied as a whole when a level is opened.
#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

#include "core/board.h"

namespace tessel {

// One 16-bit lane for each cell 0..80, and 15 more that stay 0, so that a pass over the board reads
// whole vectors: 192 bytes, three cache lines.
inline constexpr int kLaneCount = 96;
struct alignas(64) Lanes : std::array<std::int16_t, kLaneCount> {};

// A permutation of the cells 0..80.
using CellOrder = PerCell<std::int16_t>;

// The truth values of LastChoice.
inline constexpr std::int16_t kTrue16 = -1;
inline constexpr std::int16_t kFalse16 = 0;

struct SearchLevel {
  CellDigits Digit{};  // digit placed in the cell, 0 = not placed
  CellOrder Order{};   // positions 0..Pos: cells to be filled; above: filled cells
  Lanes Candidates{};  // digits still possible; a trial placement keeps the cell's own
  PerCell<std::int16_t> LastChoice{};  // kTrue16: the digit now tried is the cell's highest

  // The undo log of trial placements, entries 1..UndoCount; entry 0 is never written.
  PerCell<std::int16_t> UndoDigit{};
  PerCell<std::int16_t> UndoCell{};
  PerCell<std::int16_t> UndoColumnMask{};  // bit r: the column's cell in row r lost the digit
  PerCell<std::int16_t> UndoRowMask{};     // bit c: the row's cell in column c lost the digit
  PerCell<std::int16_t> UndoCageMask{};    // bit k: the cage's k-th cell lost the digit
  std::int16_t UndoCount = 0;

  // Order, turned around for the passes over the board: PositionKeyAt of each unfilled cell, 0 in
  // the lanes of filled cells and beyond the board.
  Lanes positionKey{};
};
static_assert(std::is_trivially_copyable_v<SearchLevel>);
static_assert(sizeof(SearchLevel) == 1792, "docs/search.md reckons with this size");

// Bit 14: unfilled. Bits 7..13: 81 - position in Order. Bits 0..6: cell. The maximum over all lanes
// is thus the cell that comes first in Order, together with its position.
inline constexpr std::int16_t kUnfilledMark = 1 << 14;
inline constexpr int kPositionShift = 7;
inline constexpr int kCellBits = (1 << kPositionShift) - 1;
static_assert(kCellBits >= kCellCount && kCellCount << kPositionShift < kUnfilledMark);

// `position` and `cell`: 0..80.
constexpr std::int16_t PositionKeyAt(int position, int cell) {
  return static_cast<std::int16_t>(kUnfilledMark | (kCellCount - position) << kPositionShift |
                                   cell);
}

}  // namespace tessel
