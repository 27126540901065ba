// The connected regions of a set of cells, kept up to date while cells are taken out.
#pragma once

#include "core/cell_set.h"

namespace tessel {

struct Regions {
  CellSet first;   // one region; empty when there is no cell
  CellSet second;  // another; empty when all cells hang together
  CellSet others;  // the cells of all others

  CellSet All() const { return first | second | others; }
  // The regions after `cell`, one of theirs, is taken out.
  Regions Without(int cell) const;
};

Regions RegionsOf(CellSet cells);

}  // namespace tessel
