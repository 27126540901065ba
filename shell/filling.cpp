#include "shell/filling.h"

#include "search/fill.h"
#include "shell/progress_drawing.h"
#include "shell/stage_time.h"
#include "shell/window_progress.h"

namespace tessel {

namespace {

// Draws every placement for which "Visualize progress" is ticked.
class FillProgress final : public WindowProgress {
 public:
  FillProgress(const GameState& state, Form& form, View& view, ProgressDrawing& drawing)
      : WindowProgress(state, view), form_(form), drawing_(drawing) {}

  bool WatchesPlacements() const override { return form_.Checked(CheckBox::CheckVisualize); }
  void DigitPlaced(const Placement& placement) override {
    const bool trial = placement.kind == Placement::Kind::kTrial;
    drawing_.DLXUpdateGrid(placement.position, placement.cell,
                           trial ? UpdateMode::kTrial : UpdateMode::kSingle);
  }

 private:
  const Form& form_;
  ProgressDrawing& drawing_;
};

}  // namespace

bool Filling::GenerateTessel() {
  random_.Seed(clock_.Seed());
  StartStopwatch(state_, clock_);
  search_.Use(LayoutOf(state_));
  ProgressDrawing drawing(state_, form_, search_);
  FillProgress progress(state_, form_, view_, drawing);
  const auto solution = Fill(search_, random_, progress);
  if (!solution) {
    state_.StopRequested = false;
    return false;
  }
  ShowStageTime(state_, form_, "Filled");
  drawing.DLXUpdateGrid(-1, search_.Top().Order.front(), UpdateMode::kFinished);
  state_.WorkGrid = DigitsOf(*solution);
  return true;
}

}  // namespace tessel
