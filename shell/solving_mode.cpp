#include "shell/solving_mode.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/texts.h"
#include "shell/board_clicks.h"
#include "shell/candidate_marks.h"

namespace tessel {

void SolvingMode::CommandSolve_Click() {
  form_.SetCaption(texts::kProgram);
  form_.SetNotice("");
  form_.SetNews("");
  if (!form_.SolveButtonsVisible()) opened_ = {};
  form_.ShowSolveButtons(true);
  form_.Enable(Button::CommandHint, true);
  form_.Enable(Button::CommandSolution, true);
  CommandRestart_Click();
}

bool SolvingMode::Grid_MouseUp(int cell, MouseButton button, CellPosition at) {
  const std::optional<Move> move = MoveOf(form_, state_, cell, button, at);
  if (!move) return false;
  Make(*move);
  RefreshPencilmarks();
  // A full board ends the game whether it is right or wrong, on purpose: hints point at wrong
  // digits.
  const bool finished = IsFull(state_);
  if (finished) sounds_.PlaySound(Sound::kApplause);
  OpenBoard(!finished);
  return true;
}

void SolvingMode::Make(const Move& move) {
  sounds_.PlaySound(move.sound);
  history_.Record(state_, move.position);
  static_cast<Position&>(state_) = move.position;
}

void SolvingMode::RefreshPencilmarks() {
  CandidateMarks marks(state_, form_);
  switch (state_.PencilmarkMode) {
    case MarkMode::kNotUpdated:
      return marks.SwitchPencilmarksOff();
    case MarkMode::kAutomatic:
      return marks.SwitchPencilmarksOn();
  }
}

void SolvingMode::EndAssignment() {
  state_.AssignmentPending = Bool16::kFalse;
  form_.SetButtonCaption(Button::CommandHint, texts::kHint);
}

void SolvingMode::OpenBoard(bool open) {
  state_.Finished = !open;
  form_.Enable(Button::CommandSolution, open);
  form_.Enable(Button::CommandHint, open);
  Keep();
}

bool SolvingMode::IsOpenedPuzzle() const {
  return form_.SolveButtonsVisible() && state_.SavedPuzzle == opened_ &&
         std::ranges::equal(state_.CageOfCell, opened_.CageMap);
}

void SolvingMode::EndHistory() {
  history_.Clear();
  isKept_ = false;
}

// A game of which nothing was played leaves the one before it to be continued. A finished one is
// over, until its end is undone.
void SolvingMode::Keep() {
  if (!CanUndo() && !CanRedo()) return;
  if (IsFull(state_)) {
    if (std::exchange(isKept_, false)) keeper_.Forget();
    return;
  }
  const auto error = keeper_.Keep(opened_, state_, history_);
  isKept_ = !error;
  if (error && !std::exchange(toldOfFailure_, true)) form_.SetNotice(*error);
}

void SolvingMode::Continue(const KeptGame& game) {
  form_.ShowSolveButtons(true);
  form_.SetTextHint(texts::kPressHint);
  opened_ = game.puzzle;
  history_ = game.history;
  isKept_ = true;
  Show(game.position);
}

void SolvingMode::CommandRestart_Click() {
  EndAssignment();
  Make(GameOf(state_).Restart(state_));
  if (state_.SavedPuzzle != opened_) EndHistory();
  opened_ = state_.SavedPuzzle;
  for (int cell = 0; cell < kCellCount; ++cell) ShowPuzzleCell(cell);
  form_.SetTextHint(texts::kPressHint);
  OpenBoard(true);
}

void SolvingMode::ShowPuzzleCell(int cell) {
  form_.SetMarksColour(cell, kBlack);
  form_.SetCellText(cell, state_.PlayBoard.Board[cell]);
  form_.ShowMarks(cell, ShownMarks(state_, cell));
}

void SolvingMode::CommandSolution_Click() {
  Make(GameOf(state_).Solution(state_));
  EndAssignment();
  for (int cell = 0; cell < kCellCount; ++cell) {
    form_.ShowMarks(cell, 0);
    form_.SetCellText(cell, state_.PlayBoard.Board[cell]);
  }
  OpenBoard(false);
}

void SolvingMode::Leave() {
  for (int cell = 0; cell < kCellCount; ++cell) ShowSavedCell(cell);
  form_.SetAllCaptions(kBlack);
  form_.SetNews("");
  form_.ShowSolveButtons(false);
}

// The marks stay where they are and vanish in the colour of their ground.
void SolvingMode::ShowSavedCell(int cell) {
  form_.SetCellText(cell, state_.SavedPuzzle.Board[cell]);
  form_.ShowMarks(cell, kAllCandidates);
  form_.SetMarksColour(cell, CageColourOf(state_, cell));
}

void SolvingMode::CheckPencilmarks_Click() {
  const MarkMode mode =
      form_.Checked(CheckBox::CheckPencilmarks) ? MarkMode::kAutomatic : MarkMode::kNotUpdated;
  if (mode == state_.PencilmarkMode) return;
  Position next = state_;
  next.PencilmarkMode = mode;
  history_.Record(state_, next);
  state_.PencilmarkMode = mode;
  RefreshPencilmarks();
  Keep();
}

// The generation may have hidden the marks, or shown other digits, since the position was left.
void SolvingMode::Show(const std::optional<Position>& position) {
  if (!position) return;
  static_cast<Position&>(state_) = *position;
  form_.SetChecked(CheckBox::CheckPencilmarks, position->PencilmarkMode == MarkMode::kAutomatic);
  for (int cell = 0; cell < kCellCount; ++cell) form_.SetMarksColour(cell, kBlack);
  RefreshPencilmarks();
  OpenBoard(!IsFull(state_));
}

}  // namespace tessel
