#include "shell/puzzle_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace tessel {

namespace {

namespace fs = std::filesystem;

constexpr char kOwnFolder[] = "tessel-sudoku";
constexpr mode_t kForTheUserAlone = 0700;

bool IsAbsolute(const char* path) {
  return path != nullptr && *path == '/';
}

// Of a program that lies in a folder such as /usr/games: /usr/share/tessel-sudoku.
fs::path SharedFolder(const fs::path& programFolder) {
  return programFolder.parent_path() / "share" / kOwnFolder;
}

bool IsThere(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

}  // namespace

std::optional<std::string> UserDataFolder(const char* xdgDataHome, const char* home) {
  if (IsAbsolute(xdgDataHome)) return (fs::path(xdgDataHome) / kOwnFolder).string();
  if (IsAbsolute(home)) return (fs::path(home) / ".local/share" / kOwnFolder).string();
  return std::nullopt;
}

std::optional<std::string> UserDataFolder() {
  return UserDataFolder(std::getenv("XDG_DATA_HOME"), std::getenv("HOME"));
}

std::string PuzzleFolder(const std::string& programPath,
                         const std::optional<std::string>& userFolder, SystemCalls& system) {
  const fs::path programFolder = fs::path(programPath).parent_path();
  const bool isInstalled = IsThere(SharedFolder(programFolder));
  if (!userFolder || (!isInstalled && system.Access(programPath.c_str(), W_OK) == 0)) {
    return programPath;
  }
  return *userFolder + "/";
}

void MakeFolder(const std::string& folder, SystemCalls& system) {
  const fs::path path(folder);
  fs::path above;
  for (const fs::path& part : path) {
    above /= part;
    if (!IsThere(above)) system.Mkdir(above.c_str(), kForTheUserAlone);
  }
}

std::string InstalledFile(const std::string& path) {
  if (IsThere(path)) return path;
  const fs::path beside(path);
  const fs::path shared = SharedFolder(beside.parent_path()) / beside.filename();
  return IsThere(shared) ? shared.string() : path;
}

}  // namespace tessel
