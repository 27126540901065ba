#include "shell/system_calls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdio>
#include <system_error>
#include <thread>

namespace tessel {

int PosixCalls::Access(const char* path, int mode) {
  return faccessat(AT_FDCWD, path, mode, AT_EACCESS);
}

int PosixCalls::Mkdir(const char* path, mode_t mode) {
  return mkdir(path, mode);
}

int PosixCalls::Open(const char* path, int flags, mode_t mode) {
  return open(path, flags, mode);
}

int PosixCalls::Flock(int file, int operation) {
  return flock(file, operation);
}

int PosixCalls::Fstat(int file, struct stat* status) {
  return fstat(file, status);
}

int PosixCalls::Stat(const char* path, struct stat* status) {
  return stat(path, status);
}

ssize_t PosixCalls::Pread(int file, void* bytes, std::size_t count, off_t offset) {
  return pread(file, bytes, count, offset);
}

ssize_t PosixCalls::Pwrite(int file, const void* bytes, std::size_t count, off_t offset) {
  return pwrite(file, bytes, count, offset);
}

int PosixCalls::Ftruncate(int file, off_t length) {
  return ftruncate(file, length);
}

int PosixCalls::Fsync(int file) {
  return fsync(file);
}

int PosixCalls::Close(int file) {
  return close(file);
}

int PosixCalls::Rename(const char* from, const char* to) {
  return rename(from, to);
}

int PosixCalls::Unlink(const char* path) {
  return unlink(path);
}

void PosixCalls::Sleep(std::chrono::microseconds time) {
  std::this_thread::sleep_for(time);
}

std::int64_t PosixCalls::Milliseconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

void PosixCalls::Start(std::function<void()> work) {
  try {
    std::thread(work).detach();
  } catch (const std::system_error&) {
    work();
  }
}

SystemCalls& RealSystemCalls() {
  static PosixCalls& calls = *new PosixCalls;
  return calls;
}

}  // namespace tessel
