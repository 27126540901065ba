// A puzzle that comes from elsewhere: from a file, the clipboard, the maker or a kept game.
#pragma once

#include "core/form.h"
#include "core/game_state.h"
#include "core/puzzle.h"

namespace tessel {

// Leaves the state, the board and the stage as a completed Conceal of this puzzle leaves them; the
// caption tells no time. Touches the solving mode's fields as little as Conceal does. The puzzle
// must have its solution.
void ShowOpenedPuzzle(GameState& state, Form& form, const Puzzle& puzzle);

}  // namespace tessel
