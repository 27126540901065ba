// Long work as the window lives through it: events come in with every step, and the button "Stop"
// among them.
#pragma once

#include "core/game_state.h"
#include "core/progress.h"
#include "core/view.h"

namespace tessel {

class WindowProgress : public Progress {
 public:
  WindowProgress(const GameState& state, View& view) : state_(state), view_(view) {}

  void Step() override { view_.PumpEvents(); }
  bool StopRequested() const override { return state_.StopRequested; }

 private:
  const GameState& state_;
  View& view_;
};

}  // namespace tessel
