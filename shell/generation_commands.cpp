// Saw, Fill and Conceal: the stages and who may run when.
#include "core/stage_time.h"
#include "core/texts.h"
#include "layout/cage_generator.h"
#include "search/conceal.h"
#include "search/fill.h"
#include "search/try_out.h"
#include "shell/puzzle_file.h"
#include "shell/puzzle_saver.h"
#include "shell/tessel_main.h"

namespace tessel {

// Events come in while a command runs. The board and the frame of the solving mode answer none of
// them, since they could meet a half-made layout; their own enabled states are left alone.
Tessel_Main::CommandRun::CommandRun(Tessel_Main& main) : main_(main) {
  main_.running_ = true;
  main_.form_.EnableSolveButtons(false);
  main_.form_.SetNotice("");
}

Tessel_Main::CommandRun::~CommandRun() {
  main_.form_.EnableSolveButtons(true);
  main_.running_ = false;
}

void Tessel_Main::CommandSaw_Click() {
  form_.SetCaption(texts::kProgram);
  if (running_) return;
  const CommandRun run(*this);
  for (const Button button : {Button::CommandSaw, Button::CommandGo, Button::CommandConceal,
                              Button::CommandSolve, Button::CommandExit}) {
    form_.Enable(button, false);
  }
  RunSaw();
  for (const Button button : {Button::CommandSaw, Button::CommandGo, Button::CommandExit}) {
    form_.Enable(button, true);
  }
}

void Tessel_Main::RunSaw() {
  for (int cell = 0; cell < kCellCount; ++cell) {
    form_.SetCellText(cell, 0);
    form_.SetCellOpaque(cell, false);
    form_.SetMarksColour(cell, kBlack);
  }
  StartStopwatch(state_, clock_);
  CageGenerator generator(state_, form_, view_, random_, clock_,
                          [this] { return AdmitsFilling(state_, view_, search_); });
  if (form_.Checked(CheckBox::MakeRegular)) {
    generator.BuildRegularLayout();
  } else {
    generator.BuildTesselPattern();
  }
  ShowStageTime(state_, form_, "Sawed");
}

void Tessel_Main::CommandGo_Click() {
  form_.SetCaption(texts::kProgram);
  if (form_.Of(Button::CommandGo).caption != texts::kFill) {
    state_.StopRequested = true;
    return;
  }
  if (running_) return;
  const CommandRun run(*this);
  RunFill();
}

void Tessel_Main::RunFill() {
  for (int cell = 0; cell < kCellCount; ++cell) form_.SetCellText(cell, 0);
  form_.Enable(Button::CommandSaw, false);
  form_.SetButtonCaption(Button::CommandGo, texts::kStop);
  form_.Enable(Button::CommandConceal, false);
  form_.Enable(Button::CommandSolve, false);
  form_.Enable(Button::CommandExit, false);
  state_.StopRequested = false;
  FillGenerator fill(state_, form_, view_, random_, clock_, search_);
  if (fill.GenerateTessel()) form_.Enable(Button::CommandConceal, true);
  form_.Enable(Button::CommandSaw, true);
  form_.SetButtonCaption(Button::CommandGo, texts::kFill);
  form_.Enable(Button::CommandExit, true);
}

void Tessel_Main::CommandConceal_Click() {
  form_.SetCaption(texts::kProgram);
  if (form_.Of(Button::CommandConceal).caption != texts::kConceal) {
    state_.StopRequested = true;
    return;
  }
  if (running_) return;
  const CommandRun run(*this);
  RunConceal();
}

void Tessel_Main::RunConceal() {
  form_.Enable(Button::CommandSaw, false);
  form_.Enable(Button::CommandGo, false);
  form_.SetButtonCaption(Button::CommandConceal, texts::kStop);
  form_.Enable(Button::CommandSolve, false);
  form_.Enable(Button::CommandExit, false);
  state_.StopRequested = false;
  Concealer concealer(state_, form_, view_, random_, clock_, search_);
  if (concealer.ConcealCells2ValidTessel()) {
    SaveTessel();
    form_.Enable(Button::CommandSolve, true);
  }
  form_.Enable(Button::CommandSaw, true);
  form_.Enable(Button::CommandGo, true);
  form_.SetButtonCaption(Button::CommandConceal, texts::kConceal);
  form_.Enable(Button::CommandExit, true);
}

// A puzzle that cannot be saved can be solved all the same; the foot of the window tells.
void Tessel_Main::SaveTessel() {
  for (int cell = 0; cell < kCellCount; ++cell) {
    state_.SavedPuzzle.Board[cell] = static_cast<std::uint8_t>(state_.Puzzle[cell]);
    state_.SavedPuzzle.Solution[cell] = static_cast<std::uint8_t>(state_.WorkGrid[cell]);
    state_.SavedPuzzle.CageMap[cell] = static_cast<std::uint8_t>(state_.CageOfCell[cell]);
  }
  const std::string path = state_.ProgramPath + kPuzzleFileName;
  const auto letWindowAnswer = [this] { view_.PumpEventsNow(); };
  if (const auto error = SavePuzzle(path, state_.SavedPuzzle, system_, letWindowAnswer)) {
    form_.SetNotice("The puzzle could not be saved to " + path + ": " + *error);
  }
}

}  // namespace tessel
