// The houses of each cell as rows of 16-bit lanes, one for each cell of the board.
#pragma once

#include "search/search_level.h"

namespace tessel {

// At every cell, the bit by which the undo log names it among the cells that share a house with a
// placed cell: bit c in column c of its row, bit r in row r of its column, bit k for the k-th cell
// of its cage that shares neither; 0 at all other cells.
using LogBits = Lanes;

// Lanes of which only the cell's own is set, with all its bits.
const std::int16_t* OwnLane(int cell);

class HouseLanes {
 public:
  const LogBits& Row(int cell) const { return rows_[RowOf(cell)]; }
  const LogBits& Column(int cell) const { return columns_[ColumnOf(cell)]; }
  const LogBits& Cage(int cell) const { return cages_[cell]; }

  HouseLanes();
  // Follows the layout when it has changed. A cell outside all cages shares none.
  void Follow(const GameState& state);

 private:
  std::array<LogBits, kSide> rows_{};
  std::array<LogBits, kSide> columns_{};
  PerCell<LogBits> cages_{};
  PerCell<std::int16_t> layout_{};
};

}  // namespace tessel
