// The window's half of the solving mode: what its clicks show and sound. The rules are those of
// SolvingGame.
#pragma once

#include <optional>

#include "core/form.h"
#include "core/game_state.h"
#include "core/sounds.h"
#include "shell/history.h"
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
  // Does what MoveOf tells; false when that is nothing.
  bool Grid_MouseUp(int cell, MouseButton button, CellPosition at);

  // Every click that changed the position is a step: on the board, on Restart and Solution, on the
  // box of the marks. Without a sound, and after the end of a game too.
  bool CanUndo() const { return IsOpenedPuzzle() && history_.CanUndo(); }
  bool CanRedo() const { return IsOpenedPuzzle() && history_.CanRedo(); }
  void Undo() { Show(history_.Undo(state_)); }
  void Redo() { Show(history_.Redo(state_)); }
  // What comes is no longer this game.
  void EndHistory() { history_.Clear(); }

 private:
  void Make(const Move& move);
  void Show(const std::optional<Position>& position);
  // Whether the game is still that of the puzzle which Solve and Restart open.
  bool IsOpenedPuzzle() const {
    return form_.SolveButtonsVisible() && state_.SavedPuzzle == opened_;
  }
  void RefreshPencilmarks();
  void EndAssignment();
  void OpenBoard(bool open);
  void ShowPuzzleCell(int cell);
  void ShowSavedCell(int cell);

  GameState& state_;
  Form& form_;
  Sounds& sounds_;
  PuzzleRecord opened_;  // the puzzle that the history's positions were played from
  History history_;
};

}  // namespace tessel
