// Playing the puzzle: clicks on cells, Restart, Solution, Quit and the pencil-mark box.
#include <algorithm>
#include <cmath>
#include <optional>

#include "core/texts.h"
#include "hints/candidate_marks.h"
#include "shell/tessel_main.h"

namespace tessel {

namespace {

// The digit whose mark lies at the position. Only the resulting value is checked, on purpose: a
// position to the left or right of the cell can name a digit of a neighbouring line of marks.
std::optional<int> DigitAt(double x, double y) {
  const double digit = 3 * std::floor(y / kMarkUnits) + std::floor(x / kMarkUnits) + 1;
  if (!(digit >= 1 && digit <= kSide)) return std::nullopt;
  return static_cast<int>(digit);
}

}  // namespace

void Tessel_Main::CommandSolve_Click() {
  form_.SetCaption(texts::kProgram);
  form_.SetNotice("");
  form_.ShowSolveButtons(true);
  OpenBoard();
  CommandRestart_Click();
}

void Tessel_Main::Grid_MouseUp(int cell, MouseButton button, int /*shift*/, double x, double y) {
  if (running_ || asking_ || cell < 0 || cell >= kCellCount) return;
  if (!form_.SolveButtonsVisible() || !form_.Of(Button::CommandSolution).enabled) return;
  const std::optional<int> digit = DigitAt(x, y);
  if (!digit || state_.SavedPuzzle.Board[cell] != 0) return;
  bool acted = false;
  switch (button) {
    case MouseButton::kLeft:
      acted = PlaceDigit(cell, *digit);
      break;
    case MouseButton::kRight:
      acted = TakeOutOrToggle(cell, *digit);
      break;
    case MouseButton::kMiddle:
      acted = ResetCell(cell);
      break;
  }
  if (!acted) return;
  RefreshPencilmarks();
  OpenBoard();
  // A full board ends the game whether it is right or wrong, on purpose: hints point at wrong
  // digits.
  if (std::ranges::count(state_.PlayBoard.Board, 0) == 0) {
    sounds_.PlaySound(Sound::kApplause);
    CloseBoard();
  }
}

bool Tessel_Main::PlaceDigit(int cell, int digit) {
  if (state_.PlayBoard.Board[cell] != 0 || !form_.Mark(cell, digit).visible) return false;
  sounds_.PlaySound(Sound::kEntry);
  state_.PlayBoard.Board[cell] = static_cast<std::uint8_t>(digit);
  state_.CandidatesBeforeEntry[cell] = state_.Candidates[cell];
  state_.Candidates[cell] = 0;
  RemoveFromHouses(state_, cell, digit, state_.Candidates);
  return true;
}

bool Tessel_Main::TakeOutOrToggle(int cell, int digit) {
  if (state_.PlayBoard.Board[cell] != 0) {
    TakeOut(cell);
    return true;
  }
  if (state_.PencilmarkMode == MarkMode::kNotUpdated) return false;
  ToggleMark(cell, digit);
  return true;
}

// The candidates that the entry took from the cell's row, column and cage are not given back.
void Tessel_Main::TakeOut(int cell) {
  sounds_.PlaySound(Sound::kPatch);
  state_.PlayBoard.Board[cell] = 0;
  state_.Candidates[cell] = state_.CandidatesBeforeEntry[cell];
}

void Tessel_Main::ToggleMark(int cell, int digit) {
  Mask& mask = state_.Candidates[cell];
  sounds_.PlaySound(Holds(mask, digit) ? Sound::kPatch : Sound::kMarkAdded);
  mask = static_cast<Mask>(mask ^ BitOf(digit));
}

// All nine candidates come back, even those that a neighbour's digit excludes.
bool Tessel_Main::ResetCell(int cell) {
  if (state_.PencilmarkMode == MarkMode::kNotUpdated) return false;
  sounds_.PlaySound(Sound::kBoink);
  state_.PlayBoard.Board[cell] = 0;
  state_.Candidates[cell] = kAllCandidates;
  return true;
}

void Tessel_Main::RefreshPencilmarks() {
  CandidateMarks marks(state_, form_);
  switch (state_.PencilmarkMode) {
    case MarkMode::kNotUpdated:
      return marks.SwitchPencilmarksOff();
    case MarkMode::kAutomatic:
      return marks.SwitchPencilmarksOn();
  }
}

void Tessel_Main::OpenBoard() {
  state_.Finished = false;
  form_.Enable(Button::CommandSolution, true);
  form_.Enable(Button::CommandHint, true);
}

void Tessel_Main::CloseBoard() {
  state_.Finished = true;
  form_.Enable(Button::CommandSolution, false);
  form_.Enable(Button::CommandHint, false);
}

void Tessel_Main::CommandRestart_Click() {
  state_.AssignmentPending = Bool16::False;
  form_.SetButtonCaption(Button::CommandHint, texts::kHint);
  sounds_.PlaySound(Sound::kPatch);
  state_.PlayBoard = state_.SavedPuzzle;
  state_.Candidates.fill(kAllCandidates);
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int given = state_.PlayBoard.Board[cell];
    if (given == 0) continue;
    state_.Candidates[cell] = 0;
    RemoveFromHouses(state_, cell, given, state_.Candidates);
  }
  for (int cell = 0; cell < kCellCount; ++cell) ShowPuzzleCell(cell);
  form_.SetTextHint(texts::kPressHint);
  OpenBoard();
}

void Tessel_Main::ShowPuzzleCell(int cell) {
  const int given = state_.PlayBoard.Board[cell];
  form_.SetMarksColour(cell, kBlack);
  form_.SetCellText(cell, given);
  for (int digit = 1; digit <= kSide; ++digit) {
    const bool hidden =
        state_.PencilmarkMode == MarkMode::kAutomatic && !Holds(state_.Candidates[cell], digit);
    form_.SetMarkVisible(cell, digit, given == 0 && !hidden);
  }
}

void Tessel_Main::CommandSolution_Click() {
  sounds_.PlaySound(Sound::kBlaster);
  state_.AssignmentPending = Bool16::False;
  form_.SetButtonCaption(Button::CommandHint, texts::kHint);
  for (int cell = 0; cell < kCellCount; ++cell) {
    form_.SetMarksVisible(cell, false);
    form_.SetCellText(cell, state_.PlayBoard.Solution[cell]);
  }
  state_.PlayBoard.Board = state_.PlayBoard.Solution;
  CloseBoard();
}

void Tessel_Main::CommandQuit_Click() {
  if (!Ask(texts::kQuitSolving, texts::kSolver)) return;
  for (int cell = 0; cell < kCellCount; ++cell) {
    form_.SetCellText(cell, state_.SavedPuzzle.Board[cell]);
    form_.SetMarksVisible(cell, true);
    form_.SetMarksColour(cell, CageColourOf(state_, cell));
  }
  form_.SetAllCaptions(kBlack);
  form_.ShowSolveButtons(false);
}

void Tessel_Main::CheckPencilmarks_Click() {
  const MarkMode mode =
      form_.Checked(CheckBox::CheckPencilmarks) ? MarkMode::kAutomatic : MarkMode::kNotUpdated;
  if (mode == state_.PencilmarkMode) return;
  state_.PencilmarkMode = mode;
  RefreshPencilmarks();
}

}  // namespace tessel
