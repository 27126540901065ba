// One complete state of the search, copied as a whole when a level is opened.
#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

#include "core/game_state.h"

namespace tessel {

// One 16-bit lane for each cell 0..80 and some more, so that passes over the board take whole
// vectors.
inline constexpr int kLaneCount = 96;
struct alignas(64) Lanes : std::array<std::int16_t, kLaneCount> {};

struct SearchLevel {
  PerCell<std::int16_t> Digit{};  // digit placed in the cell, 0 = not placed
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

  // What the passes over the board read instead of Order and Pos: each unfilled cell's RankAt, 0
  // for the other cells and beyond the board.
  Lanes Rank{};
};
static_assert(std::is_trivially_copyable_v<SearchLevel>);

// The rank of an unfilled cell: the nearer to the first position, the higher. It names the position
// and the cell, and has a bit that marks the cell as unfilled.
inline constexpr std::int16_t kUnfilledMark = 1 << 14;
inline constexpr int kRankShift = 7;
inline constexpr int kCellBits = (1 << kRankShift) - 1;
static_assert(kCellBits >= kCellCount && kCellCount << kRankShift < kUnfilledMark);

constexpr std::int16_t RankAt(int position, int cell) {
  return static_cast<std::int16_t>(kUnfilledMark | (kCellCount - position) << kRankShift | cell);
}

}  // namespace tessel
