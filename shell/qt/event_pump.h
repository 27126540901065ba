// When a pump of the logic's long work is worth a round of the event loop. A round costs as much as
// an iteration of the search even when nothing waits, so most pumps must be over in nanoseconds.
#pragma once

#include <chrono>

namespace tessel {

class EventPump {
 public:
  using Clock = std::chrono::steady_clock;

  // Whether the events are due now.
  bool Due() {
    if (++skipped_ < kPumpsPerLook) return false;
    skipped_ = 0;
    return Clock::now() - last_ >= kQuietTime;
  }

  // The events were delivered.
  void Done() {
    last_ = Clock::now();
    skipped_ = 0;
  }

 private:
  static constexpr int kPumpsPerLook = 32;  // at the clock, which is not free either
  static constexpr std::chrono::milliseconds kQuietTime{10};

  int skipped_ = 0;
  Clock::time_point last_ = Clock::now();
};

}  // namespace tessel
