#include "shell/tessel_main.h"

#include <filesystem>
#include <utility>

#include "core/texts.h"
#include "shell/hint_button.h"
#include "shell/opened_puzzle.h"

namespace tessel {

Tessel_Main::Tessel_Main(View& view, SoundPlayer& player, Clock& clock, RandomSource& random,
                         std::string programFolder, SystemCalls& system,
                         std::optional<std::string> userFolder)
    : view_(view),
      player_(player),
      clock_(clock),
      random_(random),
      form_(view),
      sounds_(state_, player),
      generation_(state_, form_, view, clock, random, system, userFolder),
      keeper_(state_.ProgramPath, std::move(userFolder), system),
      solving_(state_, form_, sounds_, keeper_) {
  state_.ProgramPath = std::move(programFolder);
}

void Tessel_Main::Form_Load() {
  view_.Show();
  player_.SetOwner(view_.WindowHandle());
  const char separator = std::filesystem::path::preferred_separator;
  if (!state_.ProgramPath.ends_with(separator)) state_.ProgramPath += separator;
  sounds_.Init_Sound();
  FillTables(state_);
  state_.StopRequested = false;
  form_.Enable(Button::CommandExit, true);
  state_.AssignmentPending = Bool16::kFalse;
  state_.PencilmarkMode = MarkMode::kAutomatic;
  random_.Seed(clock_.Seed());
}

void Tessel_Main::Click(Button button) {
  if (!AcceptsInput(button)) return;
  switch (button) {
    case Button::CommandSaw:
      solving_.EndHistory();
      return generation_.CommandSaw_Click();
    case Button::CommandGo:
      return generation_.CommandGo_Click();
    case Button::CommandConceal:
      return generation_.CommandConceal_Click();
    case Button::CommandSolve:
      return solving_.CommandSolve_Click();
    case Button::CommandExit:
      return CommandExit_Click();
    case Button::Command1:
      return Command1_Click();
    case Button::CommandHint:
      return HintButton(state_, form_, sounds_).CommandHint_Click();
    case Button::CommandQuit:
      return CommandQuit_Click();
    case Button::CommandRestart:
      return solving_.CommandRestart_Click();
    case Button::CommandSolution:
      return solving_.CommandSolution_Click();
  }
}

void Tessel_Main::Toggle(CheckBox box) {
  if (!AcceptsInput(box)) return;
  form_.SetChecked(box, !form_.Checked(box));
  if (box == CheckBox::CheckPencilmarks) solving_.CheckPencilmarks_Click();
}

bool Tessel_Main::Grid_MouseUp(int cell, MouseButton button, int /*shift*/, double x, double y) {
  if (!IsIdle() || cell < 0 || cell >= kCellCount) return false;
  return solving_.Grid_MouseUp(cell, button, {x, y});
}

bool Tessel_Main::OpenPuzzle(const Puzzle& puzzle) {
  if (form_.Running() || asking_ || !LeaveGame()) return false;
  ShowOpenedPuzzle(state_, form_, puzzle);
  return true;
}

// A game that is over needs no question.
bool Tessel_Main::LeaveGame() {
  if (!form_.SolveButtonsVisible()) return true;
  if (!state_.Finished && !Ask(texts::kQuitSolving, texts::kSolver)) return false;
  solving_.Leave();
  return true;
}

bool Tessel_Main::HasPuzzleAtHand() const {
  const bool solvable = form_.Of(Button::CommandSolve).enabled || form_.SolveButtonsVisible();
  return solvable && !form_.Running();
}

std::optional<Puzzle> Tessel_Main::PuzzleAtHand() const {
  if (!HasPuzzleAtHand()) return std::nullopt;
  const PuzzleRecord& saved = state_.SavedPuzzle;
  return Puzzle{Layout::FromCages(saved.CageMap, Layout::Shape::kAny).value(), saved.Board,
                saved.Solution};
}

std::uint64_t Tessel_Main::DrawSeed() {
  random_.Seed(clock_.Seed());
  std::uint64_t seed = 0;
  for (int draw = 0; draw < 3; ++draw) {
    constexpr int bits = 21;
    seed = seed << bits | static_cast<std::uint64_t>(DrawIndex(random_, 1 << bits));
  }
  return seed;
}

void Tessel_Main::Undo() {
  if (CanUndo()) solving_.Undo();
}

void Tessel_Main::Redo() {
  if (CanRedo()) solving_.Redo();
}

void Tessel_Main::ContinueLastGame() {
  if (!CanContinue()) return;
  const auto game = keeper_.Load();
  if (!game) return form_.SetNotice(game.error());
  const auto layout = Layout::FromCages(game->puzzle.CageMap, Layout::Shape::kAny);
  const Puzzle puzzle{layout.value(), game->puzzle.Board, game->puzzle.Solution};
  if (!OpenPuzzle(puzzle)) return;
  solving_.Continue(*game);
}

bool Tessel_Main::AcceptsInput(Button button) const {
  if (asking_ || !form_.Of(button).enabled) return false;
  return !IsInSolveFrame(button) || SolveFrameAcceptsInput();
}

bool Tessel_Main::AcceptsInput(CheckBox box) const {
  return !asking_ && (!IsInSolveFrame(box) || SolveFrameAcceptsInput());
}

bool Tessel_Main::SolveFrameAcceptsInput() const {
  return form_.SolveButtonsVisible() && form_.SolveButtonsEnabled();
}

void Tessel_Main::CommandQuit_Click() {
  if (Ask(texts::kQuitSolving, texts::kSolver)) solving_.Leave();
}

void Tessel_Main::CommandExit_Click() {
  if (Ask(texts::kQuitProgram, texts::kProgram)) view_.EndProgram();
}

bool Tessel_Main::Form_QueryUnload() {
  if (asking_ || !form_.Of(Button::CommandExit).enabled) return false;
  return Ask(texts::kQuitProgram, texts::kProgram);
}

void Tessel_Main::Command1_Click() {
  state_.Command1Pressed = true;
}

// While the question is open, no other event gets through.
bool Tessel_Main::Ask(const char* question, const char* title) {
  asking_ = true;
  const bool yes = view_.AskYesNo(question, title);
  asking_ = false;
  return yes;
}

}  // namespace tessel
