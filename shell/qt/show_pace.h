// How long each step of visualised work stays on the screen.
#pragma once

#include <chrono>
#include <optional>

#include "core/controls.h"

namespace tessel {

// Starts slowly, so that the eye can follow each step, and grows faster and faster after a while,
// so that no work lasts long: a step takes `first` up to `steady`, and then e times less for every
// `faster` that the work goes on.
struct ShowPace {
  using Milliseconds = std::chrono::duration<double, std::milli>;

  Milliseconds first;
  Milliseconds steady;
  Milliseconds faster;

  // The time of a step that is drawn so long after the beginning; none once steps would be too
  // short to be seen one by one.
  std::optional<Milliseconds> StepTime(Milliseconds elapsed) const;
};

// Of the command that works under the button.
const ShowPace& PaceOf(Button button);

}  // namespace tessel
