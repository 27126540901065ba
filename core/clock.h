// The port to time: a fine counter, a coarse one, and a seed for random choices.
#pragma once

#include <cstdint>

namespace tessel {

class Clock {
 public:
  virtual ~Clock() = default;

  // Ticks of QueryPerformanceCounter per second. Below 10,000,000 the stopwatch uses GetTickCount
  // instead; 0 where there is no such counter.
  virtual std::int64_t QueryPerformanceFrequency() = 0;
  // Ticks since an arbitrary start; never falls.
  virtual std::int64_t QueryPerformanceCounter() = 0;
  // Milliseconds since an arbitrary start; never falls.
  virtual std::int64_t GetTickCount() = 0;
  // The seed of one random layout, filling or concealing: another number with every call.
  virtual std::uint64_t Seed() = 0;
};

}  // namespace tessel
