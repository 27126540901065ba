#include "shell/game_keeper.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "shell/puzzle_folder.h"

namespace tessel {

namespace {

constexpr mode_t kForTheUserAlone = 0600;
constexpr off_t kMaxBytes = 4'000'000;  // far more than any game takes

std::string LastError() {
  return std::generic_category().message(errno);
}

// Open until the end of its life.
class OpenFile {
 public:
  OpenFile(SystemCalls& system, const std::string& path, int flags)
      : system_(system), file_(system.Open(path.c_str(), flags | O_CLOEXEC, kForTheUserAlone)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (file_ >= 0) system_.Close(file_);
  }

  bool IsOpen() const { return file_ >= 0; }
  bool Write(const std::string& text) {
    const ssize_t written = system_.Pwrite(file_, text.data(), text.size(), 0);
    if (written >= 0 && written != static_cast<ssize_t>(text.size())) errno = ENOSPC;
    return written == static_cast<ssize_t>(text.size());
  }
  // Of a regular file of a sensible size; nothing else is read.
  std::optional<std::string> Read() {
    struct stat status {};
    if (system_.Fstat(file_, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    if (status.st_size > kMaxBytes) return std::nullopt;
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    const ssize_t count = system_.Pread(file_, text.data(), text.size(), 0);
    if (count < 0) return std::nullopt;
    text.resize(static_cast<std::size_t>(count));
    return text;
  }

 private:
  SystemCalls& system_;
  int file_;
};

bool Write(const std::string& path, const std::string& text, SystemCalls& system) {
  OpenFile file(system, path, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW);
  return file.IsOpen() && file.Write(text);
}

}  // namespace

std::string GameKeeper::Folder() const {
  const std::string folder = PuzzleFolder(programPath_, userFolder_, system_);
  return folder.ends_with('/') ? folder : folder + '/';
}

bool GameKeeper::IsThere() const {
  struct stat status {};
  return system_.Stat(Path().c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

// The process's number keeps two programs from writing into one file.
std::optional<std::string> GameKeeper::Keep(const PuzzleRecord& puzzle, const Position& position,
                                            const History& history) {
  const std::string folder = Folder();
  if (folder != programPath_) MakeFolder(folder, system_);
  const std::string path = folder + kGameFileName;
  const std::string next = path + '.' + std::to_string(getpid());
  if (Write(next, TextOf(puzzle, position, history), system_) &&
      system_.Rename(next.c_str(), path.c_str()) == 0)
    return std::nullopt;
  const std::string error = LastError();
  system_.Unlink(next.c_str());
  return "The game could not be kept in " + path + ": " + error;
}

void GameKeeper::Forget() {
  system_.Unlink(Path().c_str());
}

tl::expected<KeptGame, std::string> GameKeeper::Load() {
  const std::string path = Path();
  const auto text = Read(path);
  if (!text) return tl::unexpected(text.error());
  auto game = ReadGame(*text);
  if (game) return *std::move(game);
  return tl::unexpected("There is no game in " + path + " (" + game.error() + "); " +
                        PutAside(path));
}

// Not blocking, so that a pipe in the file's place is seen as such.
tl::expected<std::string, std::string> GameKeeper::Read(const std::string& path) const {
  OpenFile file(system_, path, O_RDONLY | O_NONBLOCK);
  if (!file.IsOpen()) {
    return tl::unexpected("The game could not be read from " + path + ": " + LastError());
  }
  return file.Read().value_or("");
}

std::string GameKeeper::PutAside(const std::string& path) {
  struct stat status {};
  std::string aside = path + ".broken";
  for (int i = 2; system_.Stat(aside.c_str(), &status) == 0 && i < 1000; ++i) {
    aside = path + ".broken-" + std::to_string(i);
  }
  if (system_.Rename(path.c_str(), aside.c_str()) == 0) return "it was renamed to " + aside;
  return "it could not be put aside: " + LastError();
}

}  // namespace tessel
