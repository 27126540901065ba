// The hint result fields of the game's state, written from a hint.
#pragma once

#include "core/game_state.h"
#include "hints/hint.h"

namespace tessel {

// Writes HintKind and the fields that the hint has something for; the others keep their values.
// HintUnit1, 2 and 3 take a row, a column and a cage, or the two or three lines of a fish.
// HintDigit is left alone by singles, which the player is to find.
void WriteHintFields(GameState& state, const Hint& hint);

}  // namespace tessel
