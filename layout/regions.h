// The connected regions of a set of cells, kept up to date while cells are taken out.
#pragma once

#include "core/cell_set.h"

namespace tessel {

struct Regions {
  CellSet first;   // one region; empty when there is no cell
  CellSet second;  // another; empty when all cells are connected
  CellSet others;  // the cells of all others

  // Every cell of every region.
  CellSet All() const { return first | second | others; }
  // The regions that are left without `cell`, which must be in one of them.
  Regions Without(int cell) const;
};

// Floods the board; `first` holds the lowest-numbered cell.
Regions RegionsOf(CellSet cells);

}  // namespace tessel
