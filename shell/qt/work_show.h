// Visualised work in the time of the player who watches it.
#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "core/controls.h"
#include "shell/qt/frame_clock.h"
#include "shell/qt/show_pace.h"

namespace tessel {

// The show of one command after the other.
class WorkShow {
 public:
  explicit WorkShow(FrameClock& clock) : clock_(clock) {}

  // A command begins; its time counts from the first step that is shown.
  void Begin() { start_.reset(); }
  // Shows a step by calling `show`, and lets it stand for as long as the pace has it, calling
  // `goesOn` every hundredth of a second until that returns false. Steps that are too short to be
  // seen are shown some 25 times a second.
  void Step(const ShowPace& pace, const std::function<void()>& show,
            const std::function<bool()>& goesOn);

 private:
  void WaitUntil(FrameClock::Time end, const std::function<bool()>& goesOn);

  FrameClock& clock_;
  std::optional<FrameClock::Time> start_;
  FrameClock::Time lastPicture_;
};

// A press that was meant for "Stop" may come when the work is done and the button reads otherwise.
class LateStops {
 public:
  static constexpr std::chrono::milliseconds kLate{400};

  explicit LateStops(FrameClock& clock) : clock_(clock) {}

  // The button read "Stop" until now.
  void ReadStop(Button button) { last_ = {button, clock_.Now()}; }
  // Whether a press of the button comes so soon after that it must have been meant for "Stop".
  bool Ignores(Button button) {
    return last_ && last_->button == button && clock_.Now() - last_->when < kLate;
  }

 private:
  struct Last {
    Button button;
    FrameClock::Time when;
  };
  FrameClock& clock_;
  std::optional<Last> last_;
};

}  // namespace tessel
