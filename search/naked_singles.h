// How far naked singles alone carry givens.
#pragma once

#include "core/cell_set.h"
#include "core/game_state.h"

namespace tessel {

enum class SinglesEnd : std::uint8_t {
  kSolved,         // every cell is filled
  kContradiction,  // givens clash or are no digits, or a cell is left without a candidate
  kOpen,           // cells are left, with two candidates at least
};

// Fills cells that have one candidate left until there are none, which comes to the same in any
// order. `givens`: digits, and numbers up to 0 for empty cells; `houses`: for each cell, those that
// share a house with it, and the cell.
SinglesEnd FollowNakedSingles(const CellDigits& givens, const PerCell<CellSet>& houses);

}  // namespace tessel
