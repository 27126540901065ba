// The real system calls, but no thread is started: how often the program pumps while it saves does
// not depend on the disk.
#pragma once

#include "shell/system_calls.h"

namespace tessel {

class UnthreadedCalls final : public PosixCalls {
 public:
  void Start(std::function<void()> work) override { work(); }

  static SystemCalls& Shared() {
    static UnthreadedCalls calls;
    return calls;
  }
};

}  // namespace tessel
