// How far naked singles alone carry givens.
#pragma once

#include "core/board.h"
#include "core/cell_set.h"

namespace tessel {

enum class SinglesResult : std::uint8_t {
  kSolved,         // every cell is filled
  kContradiction,  // givens clash or are no digits, or a cell is left without a candidate
  kOpen,           // cells are left, with two candidates at least
};

// Fills cells that have one candidate left until there are none; the result does not depend on the
// order. `givens`: digits, and numbers up to 0 for empty cells; `peersAndSelf`: for each cell,
// those that share a house with it, and the cell.
SinglesResult PropagateNakedSingles(const CellDigits& givens, const PerCell<CellSet>& peersAndSelf);

}  // namespace tessel
