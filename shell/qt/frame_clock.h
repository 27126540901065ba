// The port to the time that the player lives in: visualised work waits for his eyes.
#pragma once

#include <chrono>
#include <thread>

namespace tessel {

class FrameClock {
 public:
  using Time = std::chrono::steady_clock::time_point;
  using Duration = std::chrono::steady_clock::duration;

  virtual ~FrameClock() = default;

  virtual Time Now() { return std::chrono::steady_clock::now(); }
  virtual void Sleep(Duration time) { std::this_thread::sleep_for(time); }
};

inline FrameClock& RealFrameClock() {
  static FrameClock clock;
  return clock;
}

}  // namespace tessel
