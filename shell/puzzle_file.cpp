#include "shell/puzzle_file.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace tessel {

namespace {

constexpr mode_t kNewFileMode = 0644;
constexpr int kLockAttempts = 3000;
constexpr int kLockPauseMilliseconds = 1;

std::optional<std::string> LastError() {
  return std::generic_category().message(errno);
}

// Makes the call again when a signal has interrupted it.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

// The open file; closed, and with that unlocked, at the end of its life.
class OpenFile {
 public:
  OpenFile(SystemCalls& system, const std::string& path)
      // Not blocking, so that a pipe in the file's place is seen as such.
      : system_(system), file_(Uninterrupted([&] {
          return system.Open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, kNewFileMode);
        })) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (file_ >= 0) system_.Close(file_);
  }

  std::optional<std::string> Append(const PuzzleRecord& record) {
    if (file_ < 0) return LastError();
    if (auto error = Lock()) return error;
    struct stat status {};
    if (system_.Fstat(file_, &status) != 0) return LastError();
    if (!S_ISREG(status.st_mode)) return "Not a regular file";
    return Write(record, status.st_size);
  }

  // Closing may report that an earlier write did not reach the disk.
  std::optional<std::string> Close() {
    const int file = std::exchange(file_, -1);
    if (system_.Close(file) != 0 && errno != EINTR) return LastError();
    return std::nullopt;
  }

 private:
  // Another program holds the lock only for the moments of its own save; whoever holds it longer
  // must not hang this one. While the file grows, though, others save one record after the other
  // and leave the lock free for moments too short to be met soon: that is no reason to give up.
  std::optional<std::string> Lock() {
    off_t length = 0;
    for (int attempt = 0; attempt < kLockAttempts; ++attempt) {
      if (system_.Flock(file_, LOCK_EX | LOCK_NB) == 0) return std::nullopt;
      if (errno == ENOLCK || errno == EOPNOTSUPP) return std::nullopt;  // no locks on this disk
      if (errno != EWOULDBLOCK && errno != EINTR) return LastError();
      system_.SleepMilliseconds(kLockPauseMilliseconds);
      const off_t before = std::exchange(length, Length());
      if (length != before) attempt = 0;
    }
    return "Another program keeps the file locked";
  }

  off_t Length() {
    struct stat status {};
    return system_.Fstat(file_, &status) == 0 ? status.st_size : 0;
  }

  // One write, flushed to disk; a write that fails half-way leaves no fragment behind.
  std::optional<std::string> Write(const PuzzleRecord& record, off_t length) {
    const off_t offset = RecordsIn(length) * static_cast<off_t>(sizeof record);
    const ssize_t written =
        Uninterrupted([&] { return system_.Pwrite(file_, &record, sizeof record, offset); });
    const bool whole = written == static_cast<ssize_t>(sizeof record);
    if (whole && Uninterrupted([&] { return system_.Fsync(file_); }) == 0) return std::nullopt;
    if (written >= 0 && !whole) errno = ENOSPC;  // a short write says nothing itself
    const auto error = LastError();
    if (written >= 0) Uninterrupted([&] { return system_.Ftruncate(file_, length); });
    return error;
  }

  SystemCalls& system_;
  int file_;
};

}  // namespace

std::optional<std::string> AppendPuzzle(const std::string& path, const PuzzleRecord& record,
                                        SystemCalls& system) {
  OpenFile file(system, path);
  if (auto error = file.Append(record)) return error;
  return file.Close();
}

}  // namespace tessel
