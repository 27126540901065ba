#include "shell/board_clicks.h"

namespace tessel {

bool IsBoardOpen(const Form& form) {
  return form.SolveButtonsVisible() && form.SolveButtonsEnabled() &&
         form.Of(Button::CommandSolution).enabled;
}

SolvingGame GameOf(const GameState& state) {
  return {LayoutOf(state), state.SavedPuzzle};
}

std::optional<Move> MoveOf(const Form& form, const GameState& state, int cell, MouseButton button,
                           CellPosition at) {
  if (!IsBoardOpen(form)) return std::nullopt;
  const std::optional<int> digit = DigitAt(at);
  return digit ? GameOf(state).Click(state, cell, button, *digit) : std::nullopt;
}

}  // namespace tessel
