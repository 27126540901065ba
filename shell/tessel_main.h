// The main window's logic, as its gate: front ends deliver every event here and show what
// `Display()` holds. Events that come at a bad moment go no further; GenerationCommands,
// SolvingMode and HintButton do what the others ask.
#pragma once

#include <optional>
#include <string>

#include "core/cell_click.h"
#include "core/form.h"
#include "core/game_state.h"
#include "core/puzzle.h"
#include "core/random_source.h"
#include "core/sounds.h"
#include "shell/generation_commands.h"
#include "shell/solving_mode.h"
#include "shell/system_calls.h"

namespace tessel {

class Tessel_Main {
 public:
  // `programFolder` is where the sounds lie and puzzles are saved; in `userFolder` where they
  // cannot be saved there.
  Tessel_Main(View& view, SoundPlayer& player, Clock& clock, RandomSource& random,
              std::string programFolder, SystemCalls& system = RealSystemCalls(),
              std::optional<std::string> userFolder = std::nullopt);

  // Start-up; call it once, before any event.
  void Form_Load();

  // A press of the control as the user can make it: does nothing while the control is disabled,
  // hidden, in the disabled frame, or behind a question.
  void Click(Button button);
  // The box's own toggling and what follows from it; the same restrictions as Click.
  void Toggle(CheckBox box);
  // A mouse button released over a cell, 0..80, at (x, y) units from the cell's top left corner;
  // positions outside the cell are allowed. The shift state is ignored. True when it did something.
  bool Grid_MouseUp(int cell, MouseButton button, int shift, double x, double y);
  // Puts another puzzle on the board, which must have its solution, as a completed Conceal leaves
  // one; nothing is saved. A game that is not over is left only when the player agrees, by Quit's
  // question. False, and nothing has changed, when the player does not, and while a command runs or
  // a question is open.
  bool OpenPuzzle(const Puzzle& puzzle);
  // What Solve or Restart would open; nothing while there is no such puzzle, or a command runs.
  std::optional<Puzzle> PuzzleAtHand() const;
  bool HasPuzzleAtHand() const;
  // Where concealed puzzles are saved, whether or not the file is there yet.
  std::string PuzzleFilePath() const { return generation_.PuzzleFilePath(); }
  // Says something at the foot of the window, until the next command.
  void Tell(const std::string& what) { form_.SetNotice(what); }
  // A number for work of its own that needs chance.
  std::uint64_t DrawSeed();
  // A step back or forth in the game on the board.
  bool CanUndo() const { return IsIdle() && solving_.CanUndo(); }
  bool CanRedo() const { return IsIdle() && solving_.CanRedo(); }
  void Undo();
  void Redo();
  // The unfinished game that was played last, here or by a program before, unless it is on the
  // board. A game that is open is left only after the question of Quit.
  bool CanContinue() const { return IsIdle() && !solving_.IsKept() && keeper_.IsThere(); }
  void ContinueLastGame();
  // The request to close the window; true when the window may close.
  bool Form_QueryUnload();

  // Whether a press of the control would act now.
  bool AcceptsInput(Button button) const;
  bool AcceptsInput(CheckBox box) const;
  // Whether neither a command runs nor a question is open.
  bool IsIdle() const { return !asking_ && !form_.Running(); }

  const Form& Display() const { return form_; }
  const GameState& State() const { return state_; }

 private:
  friend class StateProbe;  // of the tests

  void CommandQuit_Click();
  void CommandExit_Click();
  void Command1_Click();
  bool SolveFrameAcceptsInput() const;
  bool LeaveGame();
  bool Ask(const char* question, const char* title);

  View& view_;
  SoundPlayer& player_;
  Clock& clock_;
  RandomSource& random_;
  GameState state_;
  Form form_;
  Sounds sounds_;
  GenerationCommands generation_;
  GameKeeper keeper_;
  SolvingMode solving_;
  bool asking_ = false;  // a question is open
};

}  // namespace tessel
