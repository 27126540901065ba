#include "tests/shell/puzzle_file_test.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessel {
namespace {

using PuzzleFile = PuzzleFileTest;

TEST_F(PuzzleFile, TheFirstRecordMakesTheFile) {
  AppendWell(1);
  EXPECT_EQ(Contents(), BytesOf(NumberedRecord(1)));
  EXPECT_EQ(std::filesystem::file_size(Path()), 243u);
}

TEST_F(PuzzleFile, TheThirdRecordStartsAtOffset486) {
  AppendWell(1);
  AppendWell(2);
  ASSERT_EQ(std::filesystem::file_size(Path()), 486u);
  AppendWell(3);
  EXPECT_EQ(Contents(),
            BytesOf(NumberedRecord(1)) + BytesOf(NumberedRecord(2)) + BytesOf(NumberedRecord(3)));
}

TEST_F(PuzzleFile, HoldsBoardSolutionAndCagesAsSingleBytes) {
  PuzzleRecord record;
  record.Board.fill(1);
  record.Solution.fill(2);
  record.CageMap.fill(9);
  ASSERT_EQ(AppendPuzzle(Path().string(), record, system), 1);
  EXPECT_EQ(Contents(), std::string(81, '\1') + std::string(81, '\2') + std::string(81, '\t'));
}

TEST_F(PuzzleFile, AnEmptyFileCountsNoRecord) {
  WriteFile(Path(), "");
  AppendWell(1);
  EXPECT_EQ(Contents(), BytesOf(NumberedRecord(1)));
}

TEST_F(PuzzleFile, AFragmentOfUpTo121BytesIsOverwritten) {
  for (const std::size_t fragment : {1u, 2u, 120u, 121u}) {
    const std::string before = BytesOf(NumberedRecord(1));
    WriteFile(Path(), before + std::string(fragment, 'x'));
    AppendWell(2);
    EXPECT_EQ(Contents(), before + BytesOf(NumberedRecord(2))) << fragment;
  }
}

TEST_F(PuzzleFile, AFragmentOf122OrMoreBytesStaysAndTheRecordLandsOnePlaceFurther) {
  for (const std::size_t fragment : {122u, 123u, 242u}) {
    const std::string before = BytesOf(NumberedRecord(1)) + std::string(fragment, 'x');
    WriteFile(Path(), before);
    AppendWell(2);
    EXPECT_EQ(Contents(),
              before + std::string(kRecordSize - fragment, '\0') + BytesOf(NumberedRecord(2)))
        << fragment;
  }
}

TEST_F(PuzzleFile, AFileOfAFragmentAloneIsTreatedAlike) {
  WriteFile(Path(), std::string(121, 'x'));
  AppendWell(1);
  EXPECT_EQ(Contents(), BytesOf(NumberedRecord(1)));
  WriteFile(Path(), std::string(122, 'x'));
  AppendWell(1);
  EXPECT_EQ(Contents().substr(243), BytesOf(NumberedRecord(1)));
}

TEST_F(PuzzleFile, CountsRecordsToTheNearest) {
  EXPECT_EQ(RecordsIn(0), 0);
  EXPECT_EQ(RecordsIn(121), 0);
  EXPECT_EQ(RecordsIn(122), 1);
  EXPECT_EQ(RecordsIn(243), 1);
  EXPECT_EQ(RecordsIn(364), 1);
  EXPECT_EQ(RecordsIn(365), 2);
  EXPECT_EQ(RecordsIn(486), 2);
  EXPECT_EQ(RecordsIn(243'000'000'000), 1'000'000'000);
}

TEST_F(PuzzleFile, IsLockedMeasuredWrittenOnceAndFlushed) {
  using enum SystemCall;
  AppendWell(1);
  EXPECT_THAT(system.calls,
              testing::ElementsAre(kOpen, kFlock, kFstat, kStat, kPwrite, kFsync, kClose));
}

TEST_F(PuzzleFile, ANewFileIsReadableByAllAndWritableByItsOwner) {
  const mode_t before = umask(0);
  AppendWell(1);
  umask(before);
  EXPECT_EQ(std::filesystem::status(Path()).permissions(), std::filesystem::perms{0644});
}

TEST_F(PuzzleFile, ASymbolicLinkIsFollowed) {
  const auto target = folder.Path() / "elsewhere";
  WriteFile(target, BytesOf(NumberedRecord(1)));
  std::filesystem::create_symlink(target, Path());
  AppendWell(2);
  EXPECT_TRUE(std::filesystem::is_symlink(Path()));
  EXPECT_EQ(RecordsOf(target).size(), 2u);
}

TEST_F(PuzzleFile, ASymbolicLinkToNothingMakesItsTarget) {
  const auto target = folder.Path() / "elsewhere";
  std::filesystem::create_symlink(target, Path());
  AppendWell(1);
  EXPECT_EQ(RecordsOf(target).size(), 1u);
}

TEST_F(PuzzleFile, ADirectoryInItsPlaceIsLeftAlone) {
  std::filesystem::create_directory(Path());
  EXPECT_EQ(Append(1), "Is a directory");
  EXPECT_TRUE(std::filesystem::is_empty(Path()));
}

TEST_F(PuzzleFile, APipeInItsPlaceHangsNothing) {
  ASSERT_EQ(mkfifo(Path().c_str(), 0600), 0);
  EXPECT_EQ(Append(1), "Not a regular file");
}

TEST_F(PuzzleFile, ADeviceInItsPlaceIsNotWritten) {
  std::filesystem::create_symlink("/dev/full", Path());
  EXPECT_EQ(Append(1), "Not a regular file");
  EXPECT_EQ(system.Made(SystemCall::kPwrite), 0);
}

TEST_F(PuzzleFile, AMissingFolderIsToldAndNotMade) {
  const auto missing = folder.Path() / "missing";
  EXPECT_EQ(ErrorOf(AppendPuzzle((missing / kPuzzleFileName).string(), NumberedRecord(1), system)),
            "No such file or directory");
  EXPECT_FALSE(std::filesystem::exists(missing));
}

TEST_F(PuzzleFile, AFolderThatIsAFileIsTold) {
  WriteFile(folder.Path() / "file", "text");
  EXPECT_EQ(ErrorOf(AppendPuzzle((folder.Path() / "file" / kPuzzleFileName).string(),
                                 NumberedRecord(1), system)),
            "Not a directory");
  EXPECT_EQ(ReadFile(folder.Path() / "file"), "text");
}

// Runs as a user who owns nothing, when the tests run as root.
class PuzzleFileOfAnother : public PuzzleFileTest {
 protected:
  static constexpr uid_t kNobody = 65534;

  std::optional<std::string> AppendAsAnother() {
    const bool root = geteuid() == 0;
    EXPECT_TRUE(!root || seteuid(kNobody) == 0);
    const auto error = Append(2);
    EXPECT_TRUE(!root || seteuid(0) == 0);
    return error;
  }
  static constexpr std::filesystem::perms kReadOnlyFolder{0555};
  static constexpr std::filesystem::perms kReadOnlyFile{0444};
};

TEST_F(PuzzleFileOfAnother, AReadOnlyFolderIsTold) {
  std::filesystem::permissions(folder.Path(), kReadOnlyFolder);
  EXPECT_EQ(AppendAsAnother(), "Permission denied");
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST_F(PuzzleFileOfAnother, AReadOnlyFileIsToldAndUntouched) {
  AppendWell(1);
  std::filesystem::permissions(folder.Path(), kReadOnlyFolder);
  std::filesystem::permissions(Path(), kReadOnlyFile);
  EXPECT_EQ(AppendAsAnother(), "Permission denied");
  EXPECT_EQ(Contents(), BytesOf(NumberedRecord(1)));
}

}  // namespace
}  // namespace tessel
