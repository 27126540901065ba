// One complete state of the search, copied as a whole when a level is opened.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <type_traits>

#include "core/game_state.h"

namespace tessel {

// One 16-bit lane for each cell 0..80 and some more, so that passes over the board take whole
// vectors.
inline constexpr int kLaneCount = 96;
struct alignas(32) Lanes : std::array<std::int16_t, kLaneCount> {
  PerCell<std::int16_t> Board() const {
    PerCell<std::int16_t> board;
    std::copy_n(begin(), kCellCount, board.begin());
    return board;
  }
};
// What stands in Digit's lanes beyond the board: they count as filled.
inline constexpr std::int16_t kBeyondTheBoard = -1;

struct SearchLevel {
  Lanes Digit{};                  // digit placed in the cell, 0 = not placed
  PerCell<std::int16_t> Order{};  // positions 0..Pos: cells to be filled; above: filled cells
  Lanes Candidates{};             // digits still possible; a trial placement keeps the cell's own
  PerCell<std::int16_t> LastChoice{};  // -1 when the digit now tried is the cell's highest, else 0

  // The log of trial placements, entries 1..UndoCount; entry 0 is never written.
  PerCell<std::int16_t> UndoDigit{};
  PerCell<std::int16_t> UndoCell{};
  PerCell<std::int16_t> UndoColumnMask{};  // bit r: the column's cell in row r lost the digit
  PerCell<std::int16_t> UndoRowMask{};     // bit c: the row's cell in column c lost the digit
  PerCell<std::int16_t> UndoCageMask{};    // bit k: the cage's k-th cell lost the digit
  std::int16_t UndoCount = 0;
};
static_assert(std::is_trivially_copyable_v<SearchLevel>);

}  // namespace tessel
