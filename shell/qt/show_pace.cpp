#include "shell/qt/show_pace.h"

#include <algorithm>
#include <cmath>

namespace tessel {

namespace {

using namespace std::chrono_literals;

constexpr ShowPace::Milliseconds kLeastStep{4};

// About two seconds for the 80 to 150 steps of a layout, two to six for the 40 to 1,000 of a
// filling and one and a half for the 30 to 60 of a concealing.
constexpr ShowPace kSawPace{22ms, 1500ms, 400ms};
constexpr ShowPace kFillPace{50ms, 2000ms, 1000ms};
constexpr ShowPace kConcealPace{27ms, 1500ms, 400ms};

}  // namespace

std::optional<ShowPace::Milliseconds> ShowPace::StepTime(Milliseconds elapsed) const {
  const double late = std::max(0.0, (elapsed - steady) / faster);
  const Milliseconds time = first * std::exp(-late);
  return time < kLeastStep ? std::nullopt : std::optional(time);
}

const ShowPace& PaceOf(Button button) {
  if (button == Button::CommandGo) return kFillPace;
  return button == Button::CommandConceal ? kConcealPace : kSawPace;
}

}  // namespace tessel
