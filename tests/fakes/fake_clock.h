// A clock whose counter moves only when a test moves it and whose seeds follow from the first one.
#pragma once

#include "core/clock.h"

namespace tessel {

class FakeClock final : public Clock {
 public:
  explicit FakeClock(std::uint64_t firstSeed = 1) : nextSeed(firstSeed) {}

  std::int64_t QueryPerformanceFrequency() override { return frequency; }
  std::int64_t QueryPerformanceCounter() override { return counter += counterStep; }
  std::int64_t GetTickCount() override { return ticks += tickStep; }
  std::uint64_t Seed() override { return nextSeed++; }

  std::uint64_t nextSeed;
  std::int64_t frequency = 1'000'000'000;
  std::int64_t counter = 0;
  std::int64_t counterStep = 1'230'000;  // every reading comes 1.23 ms after the one before
  std::int64_t ticks = 0;
  std::int64_t tickStep = 1;
};

}  // namespace tessel
