// What the line at the foot of the window tells.
#pragma once

#include <optional>
#include <string>

#include "core/form.h"
#include "core/game_state.h"
#include "grade/step_kind.h"

namespace tessel {

// Either may be empty.
struct StatusLine {
  std::string said;      // what went wrong, else what happened
  std::string standing;  // "24 givens, 57 cells left; Tessel grade: Hard"

  friend bool operator==(const StatusLine&, const StatusLine&) = default;
};

// Whether the puzzle that was saved last can be opened or is being played; its grade is told.
bool HasPuzzle(const Form& form);

// Whether a game is over, be it won or shown, and its board can be seen.
bool ShowsFullBoard(const Form& form, const GameState& state);

// `level` is that of the saved puzzle, where it is known. What went wrong has the line to itself.
StatusLine StatusLineOf(const Form& form, const GameState& state,
                        std::optional<grade::Level> level);

}  // namespace tessel
