// The time that passes for whoever waits.
#pragma once

#include <chrono>

namespace tessel::bench {

inline double WallSeconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

template <typename Work>
double WallSecondsOf(Work&& work) {
  const double start = WallSeconds();
  work();
  return WallSeconds() - start;
}

}  // namespace tessel::bench
