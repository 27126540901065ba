#include "core/stopwatch.h"

#include <algorithm>

namespace tessel {

namespace {
// The counter's frequency is held as a fixed-point number with four decimals; a counter below
// 1000.0000 of these is no finer than it is worth and the tick count serves instead.
constexpr std::int64_t kFixedPointUnit = 10'000;
constexpr std::int64_t kLeastUsableFrequency = 1000 * kFixedPointUnit;
constexpr std::int64_t kTicksPerSecond = 1000;
}  // namespace

void sTime::Init() {
  const std::int64_t frequency = clock_.QueryPerformanceFrequency();
  useTickCount_ = frequency < kLeastUsableFrequency;
  frequency_ = useTickCount_ ? kTicksPerSecond : frequency;
}

void sTime::StartTime() {
  start_ = Reading();
}

void sTime::StopTime() {
  const std::int64_t elapsed = std::max<std::int64_t>(0, Reading() - start_);
  elapsed_ = static_cast<double>(elapsed) / static_cast<double>(frequency_);
}

std::int64_t sTime::Reading() const {
  return useTickCount_ ? clock_.GetTickCount() : clock_.QueryPerformanceCounter();
}

}  // namespace tessel
