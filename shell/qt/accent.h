// The colours of a button that stands out.
#pragma once

#include <QPalette>
#include <cstdint>

namespace tessel {

enum class Accent : std::uint8_t {
  kNone,
  kNext,     // the step of the work that comes next
  kRunning,  // its command is at work
};

// For a button in a window with the colours `window`.
QPalette AccentPalette(Accent accent, const QPalette& window);

}  // namespace tessel
