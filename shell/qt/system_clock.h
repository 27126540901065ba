// The machine's clocks.
#pragma once

#include <chrono>
#include <cstdint>

#include "core/clock.h"

namespace tessel {

class SystemClock final : public Clock {
 public:
  std::int64_t QueryPerformanceFrequency() override {
    using Period = std::chrono::steady_clock::period;
    static_assert(Period::num == 1);
    return Period::den;
  }
  std::int64_t QueryPerformanceCounter() override {
    return std::chrono::steady_clock::now().time_since_epoch().count();
  }
  std::int64_t GetTickCount() override {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
  }
  // The time of day, and a count so that two calls within one tick differ.
  std::uint64_t Seed() override {
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    return static_cast<std::uint64_t>(now) + 0x9E3779B97F4A7C15u * ++calls_;
  }

 private:
  std::uint64_t calls_ = 0;
};

}  // namespace tessel
