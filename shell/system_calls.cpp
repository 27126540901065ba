#include "shell/system_calls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <chrono>
#include <thread>

namespace tessel {

namespace {

class PosixCalls final : public SystemCalls {
 public:
  int Open(const char* path, int flags, mode_t mode) override { return open(path, flags, mode); }
  int Flock(int file, int operation) override { return flock(file, operation); }
  int Fstat(int file, struct stat* status) override { return fstat(file, status); }
  ssize_t Pwrite(int file, const void* bytes, std::size_t count, off_t offset) override {
    return pwrite(file, bytes, count, offset);
  }
  int Ftruncate(int file, off_t length) override { return ftruncate(file, length); }
  int Fsync(int file) override { return fsync(file); }
  int Close(int file) override { return close(file); }
  void SleepMilliseconds(int milliseconds) override {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
  }
};

}  // namespace

SystemCalls& RealSystemCalls() {
  static PosixCalls calls;
  return calls;
}

}  // namespace tessel
