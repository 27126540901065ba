// The real system calls, of which a test lets chosen ones fail.
#pragma once

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <vector>

#include "shell/system_calls.h"

namespace tessel {

enum class SystemCall : std::uint8_t { kOpen, kFlock, kFstat, kPwrite, kFtruncate, kFsync, kClose };

class FakeSystemCalls final : public SystemCalls {
 public:
  // The next `times` calls of this kind fail with `error`.
  void Fail(SystemCall call, int error, int times = 1) { failures_[call] = {error, times}; }

  int Open(const char* path, int flags, mode_t mode) override {
    return Fails(SystemCall::kOpen) ? -1 : real_.Open(path, flags, mode);
  }
  int Flock(int file, int operation) override {
    return Fails(SystemCall::kFlock) ? -1 : real_.Flock(file, operation);
  }
  int Fstat(int file, struct stat* status) override {
    return Fails(SystemCall::kFstat) ? -1 : real_.Fstat(file, status);
  }
  ssize_t Pwrite(int file, const void* bytes, std::size_t count, off_t offset) override {
    if (Fails(SystemCall::kPwrite)) return -1;
    return real_.Pwrite(file, bytes, std::min(count, writeAtMost), offset);
  }
  int Ftruncate(int file, off_t length) override {
    return Fails(SystemCall::kFtruncate) ? -1 : real_.Ftruncate(file, length);
  }
  int Fsync(int file) override { return Fails(SystemCall::kFsync) ? -1 : real_.Fsync(file); }
  // The file is closed all the same, as the system does it.
  int Close(int file) override {
    const int closed = real_.Close(file);
    return Fails(SystemCall::kClose) ? -1 : closed;
  }
  // No time passes.
  void SleepMilliseconds(int milliseconds) override {
    sleptMilliseconds += milliseconds;
    if (onSleep) onSleep();
  }

  int Made(SystemCall call) const {
    return static_cast<int>(std::count(calls.begin(), calls.end(), call));
  }

  std::size_t writeAtMost = std::numeric_limits<std::size_t>::max();
  std::function<void()> onSleep;
  int sleptMilliseconds = 0;
  std::vector<SystemCall> calls;  // in the order made

 private:
  struct Failure {
    int error = 0;
    int times = 0;
  };

  bool Fails(SystemCall call) {
    calls.push_back(call);
    Failure& failure = failures_[call];
    if (failure.times == 0) return false;
    --failure.times;
    errno = failure.error;
    return true;
  }

  SystemCalls& real_ = RealSystemCalls();
  std::map<SystemCall, Failure> failures_;
};

}  // namespace tessel
