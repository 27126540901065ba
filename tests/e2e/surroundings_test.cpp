// The real program in bad surroundings: each has a clear outcome, and the program goes on.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <fstream>

#include "tests/e2e/desktop.h"
#include "tests/e2e/eventually.h"
#include "tests/e2e/puzzle_file_reading.h"
#include "tests/e2e/user.h"

namespace tessel {
namespace {

constexpr std::size_t kRecordSize = sizeof(PuzzleRecord);

// A disk of a few megabytes at a folder's place, seen by this thread and its children alone.
class SmallDisk {
 public:
  // False without the right to mount.
  bool MountAt(const std::filesystem::path& folder) {
    folder_ = folder;
    return unshare(CLONE_NEWNS) == 0 &&
           mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=16m") == 0;
  }
  ~SmallDisk() { umount2(folder_.c_str(), MNT_DETACH); }

  void FillUp() const {
    std::ofstream filler(folder_ / "filler", std::ios::binary);
    const std::string block(4096, 'x');
    while (filler.write(block.data(), static_cast<std::streamsize>(block.size())).flush()) {
    }
  }

 private:
  std::filesystem::path folder_;
};

class BadSurroundings : public testing::Test {
 protected:
  BadSurroundings() { InstallProgram(folder_.Path()); }

  // The puzzle is made, the foot of the window tells that it is not saved and why, and it can be
  // played all the same, which ends the notice.
  static void ExpectNotSaved(User& user, const std::filesystem::path& file, const char* why) {
    EXPECT_TRUE(user.MakesPuzzle());
    EXPECT_TRUE(
        user.SeesText("Notice", "The puzzle could not be saved to " + file.string() + ": " + why));
    EXPECT_TRUE(user.SeesStage(Stage::kPuzzleConcealed));
    EXPECT_FALSE(user.Program().Asks());
    user.Press("CommandSolve");
    EXPECT_TRUE(user.SeesSolveButtons(true));
    EXPECT_TRUE(user.SeesNews(std::string(60, ' ')));
  }

  TemporaryFolder folder_;
};

// A user who may not write into the folder, and has no other.
Launch AsHomelessReader(const std::filesystem::path& folder) {
  const auto readable = std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec |
                        std::filesystem::perms::others_read | std::filesystem::perms::others_exec;
  std::filesystem::permissions(folder, readable);
  Launch launch;
  launch.asNobody = geteuid() == 0;  // root may write everywhere
  launch.environment.remove("HOME");
  launch.environment.remove("XDG_DATA_HOME");
  return launch;
}

TEST_F(BadSurroundings, FolderIsReadOnlyAndThereIsNoHome) {
  User user(folder_.Path(), AsHomelessReader(folder_.Path()));
  ExpectNotSaved(user, folder_.PuzzleFile(), "Permission denied");
  EXPECT_FALSE(std::filesystem::exists(folder_.PuzzleFile()));
}

TEST_F(BadSurroundings, FolderIsReadOnlyButTheUserHasOne) {
  const TemporaryFolder home;
  std::filesystem::permissions(home.Path(), std::filesystem::perms::all);
  Launch launch = AsHomelessReader(folder_.Path());
  launch.environment.insert("XDG_DATA_HOME", "not/absolute");
  launch.environment.insert("HOME", QString::fromStdString(home.Path().string()));
  User user(folder_.Path(), launch);
  ASSERT_TRUE(user.MakesPuzzle());
  EXPECT_TRUE(user.SeesNews("Saved as puzzle 1 in"));
  const std::filesystem::path data = home.Path() / ".local/share/tessel-sudoku";
  EXPECT_EQ(std::filesystem::status(data).permissions(), std::filesystem::perms::owner_all);
  EXPECT_EQ(std::filesystem::file_size(data / "Tessel_Sudoku.sds"), kRecordSize);
  EXPECT_FALSE(std::filesystem::exists(folder_.PuzzleFile()));
}

TEST_F(BadSurroundings, FolderIsReadOnlyAndTheDataFolderIsAFile) {
  const TemporaryFolder home;
  std::filesystem::permissions(home.Path(), std::filesystem::perms::all);
  std::ofstream(home.Path() / "data") << "taken";
  Launch launch = AsHomelessReader(folder_.Path());
  const std::filesystem::path data = home.Path() / "data";
  launch.environment.insert("XDG_DATA_HOME", QString::fromStdString(data.string()));
  User user(folder_.Path(), launch);
  ExpectNotSaved(user, data / "tessel-sudoku/Tessel_Sudoku.sds", "Not a directory");
}

TEST_F(BadSurroundings, DiskIsFull) {
  SmallDisk disk;
  const TemporaryFolder mountPoint;
  if (!disk.MountAt(mountPoint.Path())) GTEST_SKIP() << "needs the right to mount a small disk";
  InstallProgram(mountPoint.Path());
  User user(mountPoint.Path());
  ASSERT_TRUE(user.MakesPuzzle());
  const std::string saved = BytesOf(mountPoint.PuzzleFile());
  disk.FillUp();
  // The file's last block has room for a few records more.
  std::ofstream(mountPoint.PuzzleFile(), std::ios::binary | std::ios::app)
      << std::string(16 * kRecordSize - saved.size(), 'x');
  const std::string before = BytesOf(mountPoint.PuzzleFile());
  ExpectNotSaved(user, mountPoint.PuzzleFile(), "No space left on device");
  EXPECT_EQ(BytesOf(mountPoint.PuzzleFile()), before);
}

TEST_F(BadSurroundings, FilesMayNotGrow) {
  Launch launch;
  launch.fileSizeLimit = 0;
  User user(folder_.Path(), launch);
  ExpectNotSaved(user, folder_.PuzzleFile(), "File too large");
  EXPECT_EQ(BytesOf(folder_.PuzzleFile()), "");
}

TEST_F(BadSurroundings, FilesMayGrowForAPartOfARecordOnly) {
  const std::string before(kRecordSize, 'x');
  std::ofstream(folder_.PuzzleFile(), std::ios::binary) << before;
  Launch launch;
  launch.fileSizeLimit = 300;
  User user(folder_.Path(), launch);
  ExpectNotSaved(user, folder_.PuzzleFile(), "No space left on device");
  EXPECT_EQ(BytesOf(folder_.PuzzleFile()), before);
}

// The puzzle goes beside the program and nowhere else, whatever bytes the folder's name is made of.
TEST_F(BadSurroundings, FolderIsNotNamedInUtf8) {
  const auto folder = folder_.Path() / "caf\xE9 & \xFF";
  std::filesystem::create_directory(folder);
  for (const auto& file : std::filesystem::directory_iterator(folder_.Path())) {
    if (file.is_regular_file()) std::filesystem::copy(file, folder);
  }
  Launch launch;
  launch.asNobody = geteuid() == 0;  // for whom a wrong folder such as / would be a failure
  for (const auto& path : {folder_.Path(), folder}) {
    std::filesystem::permissions(path, std::filesystem::perms::all);
  }
  // Qt cannot start a program by such a name either.
  const auto link = folder_.Path() / "link";
  std::filesystem::create_directory_symlink(folder, link);
  User user(link, launch);
  EXPECT_TRUE(user.MakesPuzzle());
  EXPECT_TRUE(user.SeesStage(Stage::kPuzzleConcealed));
  EXPECT_TRUE(user.SeesNews("Saved as puzzle 1 in"));
  EXPECT_TRUE(IsSoundPuzzle(OnlyRecord(folder / "Tessel_Sudoku.sds")));
  EXPECT_FALSE(std::filesystem::exists(folder_.PuzzleFile()));
}

TEST_F(BadSurroundings, PuzzleFileIsADirectory) {
  std::filesystem::create_directory(folder_.PuzzleFile());
  User user(folder_.Path());
  ExpectNotSaved(user, folder_.PuzzleFile(), "Is a directory");
  EXPECT_TRUE(std::filesystem::is_empty(folder_.PuzzleFile()));
}

TEST_F(BadSurroundings, HomeIsNotSet) {
  Launch launch;
  for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
    launch.environment.remove(name);
  }
  User user(folder_.Path(), launch);
  EXPECT_TRUE(user.MakesPuzzle());
  EXPECT_TRUE(IsSoundPuzzle(OnlyRecord(folder_.PuzzleFile())));
}

// A fragment of up to 121 bytes behind the last whole record is overwritten from its start; one of
// 122 or more stays, and the new record comes a place further on.
class TrailingFragment : public BadSurroundings, public testing::WithParamInterface<std::size_t> {};

TEST_P(TrailingFragment, DecidesWhereTheNextRecordGoes) {
  const std::size_t fragment = GetParam();
  const std::string before(kRecordSize + fragment, 'f');
  std::ofstream(folder_.PuzzleFile(), std::ios::binary) << before;
  User user(folder_.Path());
  ASSERT_TRUE(user.MakesPuzzle());

  const std::size_t offset = fragment <= 121 ? kRecordSize : 2 * kRecordSize;
  const std::string after = BytesOf(folder_.PuzzleFile());
  ASSERT_EQ(after.size(), offset + kRecordSize);
  const PuzzleRecord record = RecordAt(after, offset);
  EXPECT_TRUE(IsSoundPuzzle(record));
  EXPECT_TRUE(user.SeesBoard(ExpectedBoard::Concealed(record)));
  std::string rest = before;
  rest.resize(offset, '\0');
  EXPECT_EQ(after.substr(0, offset), rest);
}

INSTANTIATE_TEST_SUITE_P(Bytes, TrailingFragment, testing::Values(1, 121, 122, 242),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tessel
