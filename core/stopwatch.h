// The stopwatch of the generation stages.
#pragma once

#include <cstdint>

#include "core/clock.h"

namespace tessel {

class sTime {
 public:
  // Refers to the clock, which must live as long.
  explicit sTime(Clock& clock) : clock_(clock) {}

  // Chooses the time source: the performance counter if it ticks at 10 MHz or more, else the tick
  // count. Call it before the first StartTime.
  void Init();
  void StartTime();
  void StopTime();
  // Seconds between StartTime and the last StopTime: 0 before that, and never negative.
  double RetTime() const { return elapsed_; }

 private:
  std::int64_t Reading() const;

  Clock& clock_;
  std::int64_t frequency_ = 1000;
  std::int64_t start_ = 0;
  double elapsed_ = 0.0;
  bool useTickCount_ = true;
};

}  // namespace tessel
