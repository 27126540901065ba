#include "shell/sawing.h"

#include <utility>

#include "shell/window_progress.h"

namespace tessel {

namespace {

void Paint(Form& form, const GameState& state, int cell) {
  form.SetCellOpaque(cell, true);
  form.SetCellBackground(cell, CageColourOf(state, cell));
}

// Keeps CageOfCell as far as the attempt has come, and the painted cells while that is wanted.
class SawProgress final : public WindowProgress {
 public:
  SawProgress(GameState& state, Form& form, View& view)
      : WindowProgress(state, view), state_(state), form_(form) {}

  // Clears the board for an attempt; what symmetry it is to have.
  LayoutSymmetry BeginAttempt() {
    state_.CageOfCell.fill(0);
    for (int cell = 0; cell < kCellCount; ++cell) form_.SetCellOpaque(cell, false);
    symmetry_ =
        form_.Checked(CheckBox::Rotational) ? LayoutSymmetry::kHalfTurn : LayoutSymmetry::kNone;
    return symmetry_;
  }

  // The centre cage of a rotational layout is not shown while it grows.
  void CellClaimed(int cell, int cage) override {
    state_.CageOfCell[cell] = static_cast<std::int16_t>(cage);
    if (symmetry_ == LayoutSymmetry::kHalfTurn && cage == kCentreCage) return;
    if (form_.Checked(CheckBox::CheckVisualize)) Paint(form_, state_, cell);
  }

 private:
  GameState& state_;
  Form& form_;
  LayoutSymmetry symmetry_ = LayoutSymmetry::kNone;
};

}  // namespace

Sawing::Sawing(GameState& state, Form& form, View& view, RandomSource& random, Clock& clock,
               AcceptLayout accept)
    : state_(state),
      form_(form),
      view_(view),
      random_(random),
      clock_(clock),
      accept_(std::move(accept)) {}

void Sawing::BuildTesselPattern() {
  random_.Seed(clock_.Seed());
  SawProgress progress(state_, form_, view_);
  CageGenerator generator(random_, progress);
  while (true) {
    const auto layout = generator.Attempt(progress.BeginAttempt());
    if (!layout) continue;
    SetLayout(state_, *layout);
    if (accept_(*layout)) break;
  }
  PaintAll();
  view_.Beep();
}

void Sawing::BuildRegularLayout() {
  SetLayout(state_, Layout::Regular());
  PaintAll();
}

void Sawing::PaintAll() {
  for (int cell = 0; cell < kCellCount; ++cell) Paint(form_, state_, cell);
}

}  // namespace tessel
