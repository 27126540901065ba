// The houses of each cell as rows of 16-bit lanes, one for each cell of the board.
#pragma once

#include "search/search_level.h"

namespace tessel {

// Lanes of which only the cell's own is set, with all its bits.
const std::int16_t* OwnLane(int cell);

class HouseLanes {
 public:
  // The bits by which the undo log names the cells of the cell's row (bit c in column c), column
  // (bit r in row r) and cage (bit k for its k-th cell); 0 at all other cells.
  const Lanes& Row(int cell) const { return rows_[RowOf(cell)]; }
  const Lanes& Column(int cell) const { return columns_[ColumnOf(cell)]; }
  const Lanes& Cage(int cell) const { return cages_[layout_[cell]]; }
  // All candidates at the other cells that share a house with the cell, none elsewhere.
  const Lanes& Peers(int cell) const { return peers_[cell]; }

  HouseLanes();
  // Follows the layout when it has changed. A cell outside all cages shares none.
  void Follow(const GameState& state);

 private:
  void FindPeers(int cell);

  std::array<Lanes, kSide> rows_{};
  std::array<Lanes, kSide> columns_{};
  std::array<Lanes, kSide + 1> cages_{};  // index 0, for cells in no cage, stays 0
  PerCell<Lanes> peers_{};
  PerCell<std::int16_t> layout_{};
  bool followed_ = false;
};

}  // namespace tessel
