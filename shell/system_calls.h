// The system calls on files that are saved, as a seam for tests that let them fail.
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace tessel {

// The calls that POSIX knows by these names behave alike: -1 and errno on failure.
class SystemCalls {
 public:
  virtual ~SystemCalls() = default;

  virtual int Access(const char* path, int mode) = 0;  // with the effective rights
  virtual int Mkdir(const char* path, mode_t mode) = 0;
  virtual int Open(const char* path, int flags, mode_t mode) = 0;
  virtual int Flock(int file, int operation) = 0;
  virtual int Fstat(int file, struct stat* status) = 0;
  virtual int Stat(const char* path, struct stat* status) = 0;
  virtual ssize_t Pread(int file, void* bytes, std::size_t count, off_t offset) = 0;
  virtual ssize_t Pwrite(int file, const void* bytes, std::size_t count, off_t offset) = 0;
  virtual int Ftruncate(int file, off_t length) = 0;
  virtual int Fsync(int file) = 0;
  virtual int Close(int file) = 0;
  virtual int Rename(const char* from, const char* to) = 0;
  virtual int Unlink(const char* path) = 0;

  virtual void Sleep(std::chrono::microseconds time) = 0;
  // A clock that only goes forward, from an arbitrary start.
  virtual std::int64_t Milliseconds() = 0;
  // Runs `work` on a thread of its own that nobody waits for, or, where none can be had, at once.
  virtual void Start(std::function<void()> work) = 0;
};

class PosixCalls : public SystemCalls {
 public:
  int Access(const char* path, int mode) override;
  int Mkdir(const char* path, mode_t mode) override;
  int Open(const char* path, int flags, mode_t mode) override;
  int Flock(int file, int operation) override;
  int Fstat(int file, struct stat* status) override;
  int Stat(const char* path, struct stat* status) override;
  ssize_t Pread(int file, void* bytes, std::size_t count, off_t offset) override;
  ssize_t Pwrite(int file, const void* bytes, std::size_t count, off_t offset) override;
  int Ftruncate(int file, off_t length) override;
  int Fsync(int file) override;
  int Close(int file) override;
  int Rename(const char* from, const char* to) override;
  int Unlink(const char* path) override;
  void Sleep(std::chrono::microseconds time) override;
  std::int64_t Milliseconds() override;
  void Start(std::function<void()> work) override;
};

// Lives as long as the process, so that a thread may still use it while the process ends.
SystemCalls& RealSystemCalls();

}  // namespace tessel
