// What a process and its children take from the machine.
#pragma once

#include <sys/types.h>

#include <chrono>

namespace tessel {

struct ProcessUse {
  long kilobytes = 0;  // resident memory that no file backs
  std::chrono::milliseconds processorTime{0};
};

// Zero for a process that is gone.
ProcessUse UseOf(pid_t process);

}  // namespace tessel
