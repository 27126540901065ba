// The look-ahead of the cage generator.
#pragma once

#include "core/cell_set.h"
#include "core/game_state.h"

namespace tessel {

// The cells that lie in no cage.
CellSet UnclaimedCells(const GameState& state);

// Whether the unclaimed cells can still be covered by the cage being grown, which needs
// CellsToCover more cells (0..7), and by whole cages. CurrentCage is the number of cages counted as
// begun, so that (9 - CurrentCage) * 9 + CellsToCover cells are unclaimed; LastAddedCell is the
// cell just claimed and is not consulted.
bool OpenField(CellSet unclaimed, int CellsToCover, int CurrentCage, int LastAddedCell);

}  // namespace tessel
