// Where a solver stands: the digits written so far and what each open cell can still hold.
#pragma once

#include "core/board.h"
#include "core/layout.h"

namespace tessel::grade {

struct CandidateGrid {
  Grid digits{};           // 0 for an open cell
  MaskBoard candidates{};  // 0 for a filled cell

  // Whether every cell is filled.
  bool Solved() const;

  friend bool operator==(const CandidateGrid&, const CandidateGrid&) = default;
};

// The givens, and in each open cell the digits that none of its peers holds.
CandidateGrid StartOf(const Layout& layout, const Grid& givens);

// The cells that have `digit`, 1..9, as a candidate.
CellSet CandidatesOf(const CandidateGrid& position, int digit);
// And those where it is written.
CellSet PlacesOf(const CandidateGrid& position, int digit);

}  // namespace tessel::grade
