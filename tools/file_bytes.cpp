#include "tools/file_bytes.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "tools/failure.h"
#include "tools/stop_signals.h"

namespace tessel::tools {

std::uint64_t LengthOf(int file, const std::string& path) {
  struct stat status {};
  if (fstat(file, &status) != 0) throw SystemFailure("cannot read " + path);
  return static_cast<std::uint64_t>(status.st_size);
}

std::string ReadAt(int file, std::uint64_t offset, std::size_t size, const std::string& path) {
  std::string bytes(size, '\0');
  std::size_t read = 0;
  while (read < size) {
    const ssize_t now =
        pread(file, bytes.data() + read, size - read, static_cast<off_t>(offset + read));
    if (now == 0) break;
    if (now < 0 && errno != EINTR) throw SystemFailure("cannot read " + path);
    if (now > 0) read += static_cast<std::size_t>(now);
  }
  bytes.resize(read);
  return bytes;
}

void WriteAtEnd(int file, std::uint64_t offset, std::string_view bytes, const std::string& path) {
  const std::uint64_t start = offset;
  while (!bytes.empty()) {
    const ssize_t written = pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(offset));
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) {
      const Failure failure = SystemFailure("cannot write " + path);
      [[maybe_unused]] const int ignored = ftruncate(file, static_cast<off_t>(start));
      throw failure;
    }
    offset += static_cast<std::uint64_t>(written);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

FileLock::FileLock(int file, const std::string& path) : file_(file) {
  while (flock(file_, LOCK_EX) != 0) {
    if (errno == ENOLCK || errno == EOPNOTSUPP) return;  // no locks on this disk
    if (errno != EINTR) throw SystemFailure("cannot lock " + path);
    StopIfAsked();
  }
}

FileLock::~FileLock() {
  flock(file_, LOCK_UN);
}

}  // namespace tessel::tools
