// The window's half of the solving mode: what its clicks show and sound. The rules are those of
// SolvingGame.
#pragma once

#include "core/form.h"
#include "core/game_state.h"
#include "core/sounds.h"
#include "shell/solving_game.h"

namespace tessel {

class SolvingMode {
 public:
  SolvingMode(GameState& state, Form& form, Sounds& sounds)
      : state_(state), form_(form), sounds_(sounds) {}

  void CommandSolve_Click();
  void CommandRestart_Click();
  void CommandSolution_Click();
  // Quit, once the player has confirmed it.
  void Leave();
  void CheckPencilmarks_Click();
  // Does nothing unless the solving mode is open and its board is.
  void Grid_MouseUp(int cell, MouseButton button, CellPosition at);

 private:
  void Make(const Move& move);
  void RefreshPencilmarks();
  void EndAssignment();
  void OpenBoard(bool open);
  SolvingGame Game() const { return {LayoutOf(state_), state_.SavedPuzzle}; }
  void ShowPuzzleCell(int cell);
  void ShowSavedCell(int cell);

  GameState& state_;
  Form& form_;
  Sounds& sounds_;
};

}  // namespace tessel
