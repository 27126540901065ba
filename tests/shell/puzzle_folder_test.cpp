#include "shell/puzzle_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/fakes/fake_system_calls.h"
#include "tests/fakes/temporary_folder.h"

namespace tessel {
namespace {

namespace fs = std::filesystem;

TEST(UserDataFolder, IsWhereTheConventionSaysFirst) {
  EXPECT_EQ(UserDataFolder("/data", "/home/ada"), "/data/tessel-sudoku");
  EXPECT_EQ(UserDataFolder(nullptr, "/home/ada"), "/home/ada/.local/share/tessel-sudoku");
}

TEST(UserDataFolder, PathsThatAreNotAbsoluteDoNotCount) {
  EXPECT_EQ(UserDataFolder("data", "/home/ada"), "/home/ada/.local/share/tessel-sudoku");
  EXPECT_EQ(UserDataFolder("", "/home/ada"), "/home/ada/.local/share/tessel-sudoku");
  EXPECT_EQ(UserDataFolder("data", "ada"), std::nullopt);
  EXPECT_EQ(UserDataFolder(nullptr, nullptr), std::nullopt);
}

// A system's tree below `root`: games/, and share/tessel-sudoku/ with one sound.
void MakeTree(const fs::path& root) {
  fs::create_directories(root / "games");
  fs::create_directories(root / "share/tessel-sudoku");
  std::ofstream(root / "share/tessel-sudoku/Beep1.wav") << "sound";
}

TEST(PuzzleFolder, IsTheProgramsOwnWhereItCanBeWritten) {
  const TemporaryFolder folder;
  FakeSystemCalls system;
  const std::string program = folder.Path().string() + "/";
  EXPECT_EQ(PuzzleFolder(program, "/home/ada/data", system), program);
}

TEST(PuzzleFolder, IsTheUsersWhereTheProgramsCannotBeWritten) {
  const TemporaryFolder folder;
  FakeSystemCalls system;
  system.Fail(SystemCall::kAccess, EACCES, 2);
  const std::string program = folder.Path().string() + "/";
  EXPECT_EQ(PuzzleFolder(program, "/home/ada/data", system), "/home/ada/data/");
  EXPECT_EQ(PuzzleFolder(program, std::nullopt, system), program);
}

TEST(PuzzleFolder, OfAProgramInASystemsTreeIsTheUsers) {
  const TemporaryFolder root;
  MakeTree(root.Path());
  FakeSystemCalls system;
  EXPECT_EQ(PuzzleFolder(root.Path().string() + "/games/", "/home/ada/data", system),
            "/home/ada/data/");
}

TEST(MakeFolder, MakesWhatIsMissingForTheUserAlone) {
  const TemporaryFolder folder;
  FakeSystemCalls system;
  const fs::path inner = folder.Path() / "a/b";
  MakeFolder(inner.string() + "/", system);
  EXPECT_EQ(fs::status(folder.Path() / "a").permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(inner).permissions(), fs::perms::owner_all);
}

TEST(MakeFolder, LeavesFoldersThatAreThereAsTheyAre) {
  const TemporaryFolder folder;
  FakeSystemCalls system;
  const fs::perms before = fs::perms::owner_all | fs::perms::group_read;
  fs::permissions(folder.Path(), before);
  MakeFolder(folder.Path().string() + "/", system);
  EXPECT_EQ(fs::status(folder.Path()).permissions(), before);
}

TEST(InstalledFile, LiesBesideTheProgramOrInTheSharedFolder) {
  const TemporaryFolder root;
  MakeTree(root.Path());
  const std::string games = root.Path().string() + "/games/";
  const std::string shared = root.Path().string() + "/share/tessel-sudoku/Beep1.wav";
  EXPECT_EQ(InstalledFile(games + "Beep1.wav"), shared);
  std::ofstream(games + "Beep1.wav") << "sound";
  EXPECT_EQ(InstalledFile(games + "Beep1.wav"), games + "Beep1.wav");
  EXPECT_EQ(InstalledFile(games + "Beep2.wav"), games + "Beep2.wav") << "nowhere";
}

}  // namespace
}  // namespace tessel
