// The look-ahead of the cage generator.
#pragma once

#include "layout/regions.h"

namespace tessel {

// Whether the unclaimed cells can still be covered by the cage being grown, which needs
// CellsToCover more cells (0..7), and by whole cages. CurrentCage is the number of cages counted as
// begun, so that (9 - CurrentCage) * 9 + CellsToCover cells are unclaimed; LastAddedCell is the
// cell just claimed and is not consulted.
bool OpenField(const Regions& unclaimed, int CellsToCover, int CurrentCage, int LastAddedCell);

}  // namespace tessel
