#include "search/fill.h"

#include <limits>

#include "core/stage_time.h"
#include "search/progress_drawing.h"
#include "search/try_out.h"

namespace tessel {

namespace {

// Draws every placement for which "Visualize progress" is ticked, until the first solution.
class DrawnSearch final : public SearchDriver {
 public:
  DrawnSearch(GameState& state, Form& form, View& view, const ExactCoverSearch& search)
      : state_(state), form_(form), view_(view), drawing_(state, form, search) {}

  bool Proceed() override {
    view_.PumpEvents();
    FollowPlacements(form_.Checked(CheckBox::CheckVisualize));
    return !state_.StopRequested;
  }
  bool ContinueAfterSolution() override { return false; }
  void TrialPlaced(int pos, int cell) override {
    drawing_.DLXUpdateGrid(pos, cell, UpdateMode::kTrial);
  }
  void SinglePlaced(int pos, int cell) override {
    drawing_.DLXUpdateGrid(pos, cell, UpdateMode::kSingle);
  }

 private:
  GameState& state_;
  Form& form_;
  View& view_;
  ProgressDrawing drawing_;
};

}  // namespace

bool FillGenerator::GenerateTessel() {
  random_.Seed(clock_.Seed());
  StartStopwatch(state_, clock_);
  if (!FindSolution()) {
    state_.StopRequested = false;
    return false;
  }
  ShowStageTime(state_, form_, "Filled");
  const SearchLevel& solution = search_.Top();
  ProgressDrawing(state_, form_, search_)
      .DLXUpdateGrid(-1, solution.Order.front(), UpdateMode::kFinished);
  state_.WorkGrid = solution.Digit;
  return true;
}

// The order that succeeds in a try-out is the fill's order; a visualised fill runs its search once
// more, drawn.
bool FillGenerator::FindSolution() {
  TryOut tryOut(state_, view_, random_, search_);
  if (tryOut.Run(std::numeric_limits<std::int64_t>::max()) != TryOut::End::kFilled) return false;
  return !form_.Checked(CheckBox::CheckVisualize) || DrawSearch(tryOut.Order());
}

bool FillGenerator::DrawSearch(const PerCell<std::int16_t>& order) {
  search_.StartEmpty(order);
  DrawnSearch driver(state_, form_, view_, search_);
  return search_.Run(driver) == SearchEnd::kSolved;
}

}  // namespace tessel
