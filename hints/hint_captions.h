// The captions that a hint colours.
#pragma once

#include "core/form.h"
#include "core/game_state.h"

namespace tessel {

// Colours red the row and column captions that the hint result fields are about; the others stay.
void HighlightHint(const GameState& state, Form& form);

}  // namespace tessel
