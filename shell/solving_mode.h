// The window's half of the solving mode: what its clicks show and sound. The rules are those of
// SolvingGame.
#pragma once

#include <optional>

#include "core/form.h"
#include "core/game_state.h"
#include "core/sounds.h"
#include "shell/game_keeper.h"
#include "shell/history.h"
#include "shell/solving_game.h"

namespace tessel {

class SolvingMode {
 public:
  SolvingMode(GameState& state, Form& form, Sounds& sounds, GameKeeper& keeper)
      : state_(state), form_(form), sounds_(sounds), keeper_(keeper) {}

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
  void EndHistory();

  // Whether the game on the board is that of the game file.
  bool IsKept() const { return IsOpenedPuzzle() && isKept_; }
  // Opens the solving mode with that game, whose puzzle must be the saved one.
  void Continue(const KeptGame& game);

 private:
  void Make(const Move& move);
  void Show(const std::optional<Position>& position);
  void Keep();
  // Whether the game is still that of the puzzle which Solve and Restart open, in its layout.
  bool IsOpenedPuzzle() const;
  void RefreshPencilmarks();
  void EndAssignment();
  void OpenBoard(bool open);
  void ShowPuzzleCell(int cell);
  void ShowSavedCell(int cell);

  GameState& state_;
  Form& form_;
  Sounds& sounds_;
  GameKeeper& keeper_;
  bool isKept_ = false;  // the game file holds this game
  bool toldOfFailure_ = false;
  PuzzleRecord opened_;  // the puzzle that the history's positions were played from
  History history_;
};

}  // namespace tessel
