#include "shell/puzzle_reading.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <system_error>

namespace tessel {

namespace {

constexpr std::size_t kMostBytesLooked = std::size_t{1} << 20;

struct OpenFile {
  explicit OpenFile(int opened) : descriptor(opened) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (descriptor >= 0) close(descriptor);
  }

  int descriptor;
};

// Nothing where the file cannot be read any more.
std::size_t Read(const OpenFile& file, std::span<char> bytes) {
  ssize_t count = -1;
  do {
    count = read(file.descriptor, bytes.data(), bytes.size());
  } while (count < 0 && errno == EINTR);
  return static_cast<std::size_t>(std::max<ssize_t>(count, 0));
}

tl::unexpected<std::string> CannotRead(const std::string& path, const std::string& why) {
  return tl::unexpected("cannot read " + path + ": " + why);
}

formats::ByteSource Limited(formats::ByteSource source, std::size_t most) {
  return [source = std::move(source), most](std::span<char> bytes) mutable {
    const std::size_t count = source(bytes.first(std::min(bytes.size(), most)));
    most -= count;
    return count;
  };
}

}  // namespace

tl::expected<formats::ByteSource, std::string> FileSource(const std::string& path) {
  // Not blocking, so that a pipe in the file's place is seen as such.
  const auto file =
      std::make_shared<OpenFile>(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (file->descriptor < 0 || fstat(file->descriptor, &status) != 0) {
    return CannotRead(path, std::generic_category().message(errno));
  }
  if (!S_ISREG(status.st_mode)) return CannotRead(path, "Not a regular file");
  return [file](std::span<char> bytes) { return Read(*file, bytes); };
}

formats::ByteSource TextSource(std::string text) {
  return [text = std::move(text), taken = std::size_t{0}](std::span<char> bytes) mutable {
    const std::size_t count = text.copy(bytes.data(), bytes.size(), taken);
    taken += count;
    return count;
  };
}

FirstPuzzles ReadFirstPuzzles(const formats::ByteSource& source, const std::string& name) {
  FirstPuzzles first;
  formats::PuzzleReader reader(Limited(source, kMostBytesLooked));
  while (first.puzzles.size() < 2) {
    const auto next = reader.Next();
    if (!next) break;
    if (*next) {
      first.puzzles.push_back((*next)->puzzle.puzzle);
    } else if (first.fault.empty()) {
      first.fault = next->error().Message(name);
    }
  }
  return first;
}

}  // namespace tessel
