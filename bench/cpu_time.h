// The processor time of this thread: other programs on the machine do not count in it.
#pragma once

#include <time.h>

namespace tessel::bench {

inline double CpuSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

template <typename Work>
double SecondsOf(Work&& work) {
  const double start = CpuSeconds();
  work();
  return CpuSeconds() - start;
}

}  // namespace tessel::bench
