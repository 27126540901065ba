// A clock of the window that moves a second with every reading and never sleeps.
#pragma once

#include <functional>

#include "shell/qt/frame_clock.h"

namespace tessel {

class FakeFrameClock final : public FrameClock {
 public:
  Time Now() override { return now += step; }
  void Sleep(Duration time) override {
    now += time;
    slept += time;
    if (onSleep) onSleep();
  }

  Time now;
  Duration step = std::chrono::seconds(1);
  Duration slept{};
  std::function<void()> onSleep;
};

}  // namespace tessel
