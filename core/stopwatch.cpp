#include "core/stopwatch.h"

#include <algorithm>

namespace tessel {

namespace {
// Deliberate: the threshold of 1000 is compared as a fixed-point number with four decimals, which
// makes it 10 MHz. A slower counter is passed over for the tick of a millisecond.
constexpr std::int64_t kFixedPointUnit = 10'000;
constexpr std::int64_t kMinUsableFrequency = 1000 * kFixedPointUnit;
constexpr std::int64_t kTicksPerSecond = 1000;
}  // namespace

void sTime::Init() {
  const std::int64_t frequency = clock_.QueryPerformanceFrequency();
  useTickCount_ = frequency < kMinUsableFrequency;
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
