#include "shell/concealing.h"

#include "search/conceal.h"
#include "shell/stage_time.h"
#include "shell/window_progress.h"

namespace tessel {

namespace {

// WorkGrid holds the givens in question; the board shows those that were settled last.
class ConcealProgress final : public WindowProgress {
 public:
  ConcealProgress(GameState& state, Form& form, View& view)
      : WindowProgress(state, view), state_(state), form_(form) {}

  void HidingTried(const CellDigits& givens) override { state_.WorkGrid = givens; }
  void HidingDecided(const CellDigits& givens) override {
    state_.WorkGrid = givens;
    for (int cell = 0; cell < kCellCount; ++cell) form_.SetCellText(cell, givens[cell]);
    // Most judgements take no step of the search, and each shall be seen.
    if (form_.Checked(CheckBox::CheckVisualize)) Step();
  }

 private:
  GameState& state_;
  Form& form_;
};

}  // namespace

bool Concealing::ConcealCells2ValidTessel() {
  random_.Seed(clock_.Seed());
  StartStopwatch(state_, clock_);
  search_.Use(LayoutOf(state_));
  const CellDigits fullGrid = state_.WorkGrid;
  const auto mode =
      form_.Checked(CheckBox::ConcealRotational) ? ConcealMode::kPairs : ConcealMode::kSingle;
  ConcealProgress progress(state_, form_, view_);
  const auto givens = Conceal(search_, GridOf(fullGrid), mode, random_, progress);
  if (givens) {
    Complete(*givens);
  } else {
    ClearDigits();
  }
  state_.WorkGrid = fullGrid;
  state_.StopRequested = false;
  return givens.has_value();
}

void Concealing::Complete(const Grid& givens) {
  ShowStageTime(state_, form_, "Concealed");
  state_.Puzzle = DigitsOf(givens);
  for (int cell = 0; cell < kCellCount; ++cell) {
    form_.SetMarksColour(cell, CageColourOf(state_, cell));
  }
  view_.Beep();
}

void Concealing::ClearDigits() {
  for (int cell = 0; cell < kCellCount; ++cell) form_.SetCellText(cell, 0);
}

}  // namespace tessel
