// The port to time: a fine counter, a coarse one, and a seed for random choices.
#pragma once

#include <cstdint>

namespace tessel {

class Clock {
 public:
  virtual ~Clock() = default;

  // Counts a second of the performance counter; small or zero where there is no usable counter.
  virtual std::int64_t QueryPerformanceFrequency() = 0;
  virtual std::int64_t QueryPerformanceCounter() = 0;
  // Milliseconds from an arbitrary start.
  virtual std::int64_t GetTickCount() = 0;
  // A number that differs from call to call, to seed a RandomSource with.
  virtual std::uint64_t Seed() = 0;
};

}  // namespace tessel
