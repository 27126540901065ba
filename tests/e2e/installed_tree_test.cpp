// The real program where systems install it: apart from its sounds, in folders of the system.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "core/sounds.h"
#include "shell/puzzle_folder.h"
#include "shell/qt/sound_file.h"
#include "tests/e2e/puzzle_file_reading.h"
#include "tests/e2e/user.h"

namespace tessel {
namespace {

namespace fs = std::filesystem;

// games/ with the program and share/tessel-sudoku/ with all that it was installed with.
void InstallTree(const fs::path& root) {
  const fs::path shared = root / "share/tessel-sudoku";
  fs::create_directories(shared);
  InstallProgram(shared);
  fs::create_directory(root / "games");
  fs::rename(shared / "tessel-sudoku", root / "games/tessel-sudoku");
}

std::vector<fs::path> EverythingIn(const fs::path& root) {
  std::vector<fs::path> found;
  for (const auto& entry : fs::recursive_directory_iterator(root)) found.push_back(entry.path());
  std::sort(found.begin(), found.end());
  return found;
}

TEST(InstalledTree, WorksWhereItWasMovedAndStaysAsItIs) {
  const TemporaryFolder folder;
  InstallTree(folder.Path() / "first");
  const fs::path root = folder.Path() / "moved here";
  fs::rename(folder.Path() / "first", root);
  const auto before = EverythingIn(root);

  const TemporaryFolder home;
  Launch launch;
  launch.environment.remove("XDG_DATA_HOME");
  launch.environment.insert("HOME", QString::fromStdString(home.Path().string()));
  User user(root / "games", launch);
  EXPECT_TRUE(user.MakesPuzzle());
  EXPECT_TRUE(user.SeesStage(Stage::kPuzzleConcealed));
  EXPECT_TRUE(
      IsSoundPuzzle(OnlyRecord(home.Path() / ".local/share/tessel-sudoku/Tessel_Sudoku.sds")));
  EXPECT_EQ(EverythingIn(root), before);
}

TEST(InstalledTree, HoldsEverySoundInTheSharedFolder) {
  const TemporaryFolder root;
  InstallTree(root.Path());
  for (const std::string_view name : kSoundFiles) {
    const std::string beside = (root.Path() / "games" / name).string();
    EXPECT_FALSE(fs::exists(beside));
    EXPECT_TRUE(IsSoundFile(InstalledFile(beside))) << name;
  }
}

}  // namespace
}  // namespace tessel
