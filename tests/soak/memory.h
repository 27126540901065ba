// The memory that this process holds.
#pragma once

#include <unistd.h>

#include <fstream>

namespace tessel {

inline long ResidentKilobytes() {
  long all = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> all >> resident;
  return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

}  // namespace tessel
