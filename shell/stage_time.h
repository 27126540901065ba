// The stopwatch of a generation stage and its time in the window caption.
#pragma once

#include <string>

#include "core/form.h"
#include "core/game_state.h"

namespace tessel {

// Makes a new Stopwatch and starts it.
void StartStopwatch(GameState& state, Clock& clock);

// Stops the Stopwatch, writes "Tessel Sudoku - Sawed in 1.23 ms" (for the stage "Sawed") into the
// caption and releases the Stopwatch.
void ShowStageTime(GameState& state, Form& form, const std::string& stage);

}  // namespace tessel
