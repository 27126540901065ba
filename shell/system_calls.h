// The system calls that a save makes, as a seam for tests that let them fail.
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>

namespace tessel {

// Each behaves as the POSIX call of its name: -1 and errno on failure.
class SystemCalls {
 public:
  virtual ~SystemCalls() = default;

  virtual int Open(const char* path, int flags, mode_t mode) = 0;
  virtual int Flock(int file, int operation) = 0;
  virtual int Fstat(int file, struct stat* status) = 0;
  virtual ssize_t Pwrite(int file, const void* bytes, std::size_t count, off_t offset) = 0;
  virtual int Ftruncate(int file, off_t length) = 0;
  virtual int Fsync(int file) = 0;
  virtual int Close(int file) = 0;
  virtual void SleepMilliseconds(int milliseconds) = 0;
};

SystemCalls& RealSystemCalls();

}  // namespace tessel
