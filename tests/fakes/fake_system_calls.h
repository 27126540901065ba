// The real system calls, of which a test lets chosen ones fail. No time passes but what is slept,
// and no thread is started: whatever waits for one finds it at its end.
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

enum class SystemCall : std::uint8_t {
  kAccess,
  kOpen,
  kFlock,
  kFstat,
  kStat,
  kPwrite,
  kFtruncate,
  kFsync,
  kClose,
  kRename
};

class FakeSystemCalls : public PosixCalls {
 public:
  // The next `times` calls of this kind fail with `error`.
  void Fail(SystemCall call, int error, int times = 1) { failures_[call] = {error, times}; }

  int Access(const char* path, int mode) override {
    return Fails(SystemCall::kAccess) ? -1 : PosixCalls::Access(path, mode);
  }
  int Open(const char* path, int flags, mode_t mode) override {
    return Fails(SystemCall::kOpen) ? -1 : PosixCalls::Open(path, flags, mode);
  }
  int Flock(int file, int operation) override {
    return Fails(SystemCall::kFlock) ? -1 : PosixCalls::Flock(file, operation);
  }
  int Fstat(int file, struct stat* status) override {
    return Fails(SystemCall::kFstat) ? -1 : PosixCalls::Fstat(file, status);
  }
  int Stat(const char* path, struct stat* status) override {
    if (onStat) onStat();
    return Fails(SystemCall::kStat) ? -1 : PosixCalls::Stat(path, status);
  }
  ssize_t Pwrite(int file, const void* bytes, std::size_t count, off_t offset) override {
    if (Fails(SystemCall::kPwrite)) return -1;
    return PosixCalls::Pwrite(file, bytes, std::min(count, writeAtMost), offset);
  }
  int Ftruncate(int file, off_t length) override {
    return Fails(SystemCall::kFtruncate) ? -1 : PosixCalls::Ftruncate(file, length);
  }
  int Fsync(int file) override { return Fails(SystemCall::kFsync) ? -1 : PosixCalls::Fsync(file); }
  // The file is closed all the same, as the system does it.
  int Close(int file) override {
    const int closed = PosixCalls::Close(file);
    return Fails(SystemCall::kClose) ? -1 : closed;
  }
  int Rename(const char* from, const char* to) override {
    return Fails(SystemCall::kRename) ? -1 : PosixCalls::Rename(from, to);
  }
  void Sleep(std::chrono::microseconds time) override {
    slept += time;
    if (onSleep) onSleep();
  }
  std::int64_t Milliseconds() override { return slept / std::chrono::milliseconds(1); }
  void Start(std::function<void()> work) override { work(); }

  int Made(SystemCall call) const {
    return static_cast<int>(std::count(calls.begin(), calls.end(), call));
  }

  std::size_t writeAtMost = std::numeric_limits<std::size_t>::max();
  std::function<void()> onSleep;
  std::function<void()> onStat;
  std::chrono::microseconds slept{0};
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

  std::map<SystemCall, Failure> failures_;
};

}  // namespace tessel
