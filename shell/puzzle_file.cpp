#include "shell/puzzle_file.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <optional>
#include <system_error>
#include <utility>

namespace tessel {

namespace {

constexpr mode_t kNewFileMode = 0644;
constexpr std::int64_t kLockPatienceMilliseconds = 2'900;
// Of programs that save one record after the other the lock is free for some hundredths of a
// millisecond at a time; with pauses of 1 ms, one save in some 14,000 met none of these in its
// time.
constexpr std::chrono::microseconds kLockPause{200};

std::string LastError() {
  return std::generic_category().message(errno);
}

// Makes the call again when a signal has interrupted it.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

bool IsSameFile(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
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

  bool IsOpen() const { return file_ >= 0; }

  // Waits until `deadline` on the system's clock, so that a program which hangs with the lock in
  // its hands cannot hang this one. Polls, because a wait inside the call could not be bounded.
  std::optional<std::string> Lock(std::int64_t deadline) {
    while (system_.Flock(file_, LOCK_EX | LOCK_NB) != 0) {
      if (errno == ENOLCK || errno == EOPNOTSUPP) return std::nullopt;  // no locks on this disk
      if (errno != EWOULDBLOCK && errno != EINTR) return LastError();
      if (system_.Milliseconds() >= deadline) return "Another program keeps the file locked";
      system_.Sleep(kLockPause);
    }
    return std::nullopt;
  }

  tl::expected<struct stat, std::string> Status() {
    struct stat status {};
    if (system_.Fstat(file_, &status) != 0) return tl::unexpected(LastError());
    if (!S_ISREG(status.st_mode)) return tl::unexpected<std::string>("Not a regular file");
    return status;
  }

  // One write behind the last of `length` bytes, flushed to disk; a write that fails half-way
  // leaves no fragment behind.
  std::optional<std::string> Append(const PuzzleRecord& record, off_t length) {
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

  // Closing may report that an earlier write did not reach the disk.
  std::optional<std::string> Close() {
    const int file = std::exchange(file_, -1);
    if (system_.Close(file) != 0 && errno != EINTR) return LastError();
    return std::nullopt;
  }

 private:
  SystemCalls& system_;
  int file_;
};

// Whether the file of this status is still what the path leads to.
tl::expected<bool, std::string> StandsAt(const std::string& path, const struct stat& status,
                                         SystemCalls& system) {
  struct stat there {};
  if (system.Stat(path.c_str(), &there) == 0) return IsSameFile(status, there);
  if (errno == ENOENT) return false;
  return tl::unexpected(LastError());
}

}  // namespace

AppendedPuzzle AppendPuzzle(const std::string& path, const PuzzleRecord& record,
                            SystemCalls& system, WriteClaim& claim) {
  const std::int64_t deadline = system.Milliseconds() + kLockPatienceMilliseconds;
  do {
    OpenFile file(system, path);
    if (!file.IsOpen()) return tl::unexpected(LastError());
    if (const auto error = file.Lock(deadline)) return tl::unexpected(*error);
    const auto status = file.Status();
    if (!status) return tl::unexpected(status.error());
    const auto stands = StandsAt(path, *status, system);
    if (!stands) return tl::unexpected(stands.error());
    if (!*stands) continue;
    if (!claim.Take()) return tl::unexpected<std::string>("Given up");
    if (const auto error = file.Append(record, status->st_size)) return tl::unexpected(*error);
    if (const auto error = file.Close()) return tl::unexpected(*error);
    return RecordsIn(status->st_size) + 1;
  } while (system.Milliseconds() < deadline);
  return tl::unexpected<std::string>("Another program keeps moving the file");
}

AppendedPuzzle AppendPuzzle(const std::string& path, const PuzzleRecord& record,
                            SystemCalls& system) {
  WriteClaim claim;
  return AppendPuzzle(path, record, system, claim);
}

}  // namespace tessel
