// What clicks on the board do, asked before they are made. The logic moves by the answer, and the
// window shows it.
#pragma once

#include <optional>

#include "core/cell_click.h"
#include "core/form.h"
#include "core/game_state.h"
#include "shell/solving_game.h"

namespace tessel {

// Whether clicks may act at all: a game is open and not at its end, and no command is at work.
bool IsBoardOpen(const Form& form);

// The rules of the game that `state` holds.
SolvingGame GameOf(const GameState& state);

// What the mouse button released there leads to; nothing where it does nothing.
std::optional<Move> MoveOf(const Form& form, const GameState& state, int cell, MouseButton button,
                           CellPosition at);

}  // namespace tessel
