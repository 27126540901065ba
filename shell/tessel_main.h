// The main window's logic: start-up, the stage machine, solving mode. Front ends deliver every
// event here and show what `form()` holds.
#pragma once

#include <string>

#include "core/cell_click.h"
#include "core/form.h"
#include "core/game_state.h"
#include "core/random_source.h"
#include "core/sounds.h"
#include "search/exact_cover_search.h"
#include "shell/solving_mode.h"
#include "shell/system_calls.h"

namespace tessel {

class Tessel_Main {
 public:
  // `programFolder` is where the sounds lie and the puzzle file is written.
  Tessel_Main(View& view, SoundPlayer& player, Clock& clock, RandomSource& random,
              std::string programFolder, SystemCalls& system = RealSystemCalls());

  // Start-up; call it once, before any event.
  void Form_Load();

  // A press of the control as the user can make it: does nothing while the control is disabled,
  // hidden, in the disabled frame, or behind a question.
  void Click(Button button);
  // The box's own toggling and what follows from it; the same restrictions as Click.
  void Toggle(CheckBox box);
  // A mouse button released over a cell, 0..80, at (x, y) units from the cell's top left corner;
  // positions outside the cell are allowed. The shift state is ignored.
  void Grid_MouseUp(int cell, MouseButton button, int shift, double x, double y);
  // The request to close the window; true when the window may close.
  bool Form_QueryUnload();

  const Form& form() const { return form_; }
  const GameState& state() const { return state_; }

 private:
  friend class StateProbe;  // of the tests

  // Stands for the run of a generation command, which nothing else may disturb.
  class RunningCommandScope {
   public:
    RunningCommandScope(Form& form, Button button);
    RunningCommandScope(const RunningCommandScope&) = delete;
    RunningCommandScope& operator=(const RunningCommandScope&) = delete;
    ~RunningCommandScope();

   private:
    Form& form_;
  };

  // generation_commands.cpp
  void CommandSaw_Click();
  void CommandGo_Click();
  void CommandConceal_Click();
  void RunSaw();
  bool CanBeFilled(const Layout& layout);
  bool RunFill();     // whether it completed
  bool RunConceal();  // likewise
  void SaveTessel();

  // tessel_main.cpp
  void CommandQuit_Click();
  void CommandExit_Click();
  void Command1_Click();
  bool AcceptsInput(Button button) const;
  bool AcceptsInput(CheckBox box) const;
  bool SolveFrameAcceptsInput() const;
  bool Ask(const char* question, const char* title);

  View& view_;
  SoundPlayer& player_;
  Clock& clock_;
  RandomSource& random_;
  SystemCalls& system_;
  std::string programFolder_;
  GameState state_;
  Form form_;
  Sounds sounds_;
  SolvingMode solving_;
  ExactCoverSearch search_{Layout::Regular()};
  bool asking_ = false;  // a question is open
};

}  // namespace tessel
