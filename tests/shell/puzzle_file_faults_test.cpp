// Every system call of a save fails in turn.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "tests/shell/puzzle_file_test.h"

namespace tessel {
namespace {

using enum SystemCall;
using namespace std::chrono_literals;

class PuzzleFileFaults : public PuzzleFileTest {
 protected:
  PuzzleFileFaults() {
    AppendWell(1);
    AppendWell(2);
    system.calls.clear();
  }
  // The save fails with the message, the file is as before, and the next save works.
  void ExpectFailure(const std::string& message) {
    const std::string before = Contents();
    EXPECT_EQ(Append(3), message);
    EXPECT_EQ(Contents(), before);
    EXPECT_EQ(system.Made(kOpen), system.Made(kClose) + (failsToOpen ? 1 : 0)) << "left open";
    AppendWell(4);
    EXPECT_EQ(Contents(), before + BytesOf(NumberedRecord(4)));
  }

  bool failsToOpen = false;
};

TEST_F(PuzzleFileFaults, OpenFails) {
  failsToOpen = true;
  system.Fail(kOpen, EACCES);
  ExpectFailure("Permission denied");
  system.Fail(kOpen, EROFS);
  EXPECT_EQ(Append(3), "Read-only file system");
  system.Fail(kOpen, EMFILE);
  EXPECT_EQ(Append(3), "Too many open files");
}

TEST_F(PuzzleFileFaults, FlockFails) {
  system.Fail(kFlock, EBADF);
  ExpectFailure("Bad file descriptor");
}

TEST_F(PuzzleFileFaults, ADiskWithoutLocksIsWrittenAllTheSame) {
  for (const int error : {ENOLCK, EOPNOTSUPP}) {
    const std::size_t before = RecordsOf(Path()).size();
    system.Fail(kFlock, error);
    AppendWell(3);
    EXPECT_EQ(RecordsOf(Path()).size(), before + 1);
  }
}

TEST_F(PuzzleFileFaults, FstatFails) {
  system.Fail(kFstat, EIO);
  ExpectFailure("Input/output error");
}

TEST_F(PuzzleFileFaults, StatFails) {
  system.Fail(kStat, EACCES);
  ExpectFailure("Permission denied");
}

TEST_F(PuzzleFileFaults, PwriteFails) {
  system.Fail(kPwrite, ENOSPC);
  ExpectFailure("No space left on device");
}

TEST_F(PuzzleFileFaults, AShortWriteLeavesNoFragment) {
  for (const std::size_t most : {0u, 1u, 121u, 122u, 242u}) {
    const std::string before = Contents();
    system.writeAtMost = most;
    EXPECT_EQ(Append(3), "No space left on device") << most;
    EXPECT_EQ(Contents(), before) << most;
  }
}

TEST_F(PuzzleFileFaults, AShortWriteTellsOfAFullDiskWhateverFailedEarlier) {
  errno = EPERM;
  system.writeAtMost = 100;
  system.Fail(kPwrite, EINTR, 2);
  EXPECT_EQ(Append(3), "No space left on device");
}

TEST_F(PuzzleFileFaults, AShortWriteOverAFragmentKeepsTheLengthAndTheWholeRecords) {
  const std::string whole = Contents();
  WriteFile(Path(), whole + std::string(100, 'x'));
  system.writeAtMost = 50;
  EXPECT_EQ(Append(3), "No space left on device");
  EXPECT_EQ(Contents().size(), whole.size() + 100);
  EXPECT_EQ(Contents().substr(0, whole.size()), whole);
}

TEST_F(PuzzleFileFaults, AShortWriteBehindALongFragmentRestoresTheLength) {
  const std::string before = Contents() + std::string(200, 'x');
  WriteFile(Path(), before);
  system.writeAtMost = 50;
  EXPECT_EQ(Append(3), "No space left on device");
  EXPECT_EQ(Contents(), before);
}

TEST_F(PuzzleFileFaults, FsyncFails) {
  system.Fail(kFsync, EIO);
  ExpectFailure("Input/output error");
  system.Fail(kFsync, ENOSPC);
  ExpectFailure("No space left on device");
}

TEST_F(PuzzleFileFaults, TheFirstErrorIsToldWhenTheRepairFailsToo) {
  system.Fail(kFsync, EIO);
  system.Fail(kFtruncate, EPERM);
  EXPECT_EQ(Append(3), "Input/output error");
}

TEST_F(PuzzleFileFaults, CloseFails) {
  system.Fail(kClose, EIO);
  EXPECT_EQ(Append(3), "Input/output error");
  EXPECT_EQ(system.Made(kClose), 1) << "a file is never closed twice";
}

TEST_F(PuzzleFileFaults, AnInterruptedCallIsRepeatedOrDone) {
  for (const SystemCall call : {kOpen, kFlock, kPwrite, kFsync, kClose}) {
    const std::size_t before = RecordsOf(Path()).size();
    system.Fail(call, EINTR, 3);
    AppendWell(3);
    EXPECT_EQ(RecordsOf(Path()).size(), before + 1) << static_cast<int>(call);
    system.Fail(call, 0, 0);
  }
}

TEST_F(PuzzleFileFaults, ALockHeldForAWhileIsWaitedFor) {
  const int other = open(Path().c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  int naps = 0;
  system.onSleep = [&] {
    if (++naps == 20) flock(other, LOCK_UN);
  };
  AppendWell(3);
  EXPECT_EQ(naps, 20);
  EXPECT_EQ(RecordsOf(Path()).size(), 3u);
  close(other);
}

TEST_F(PuzzleFileFaults, ALockHeldForEverDoesNotHangTheProgram) {
  const int other = open(Path().c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  EXPECT_EQ(Append(3), "Another program keeps the file locked");
  EXPECT_EQ(RecordsOf(Path()).size(), 2u);
  EXPECT_GE(system.slept, 1s);
  EXPECT_LE(system.slept, 3s);
  close(other);
  AppendWell(4);
}

TEST_F(PuzzleFileFaults, AHeldLockOnAFileThatCannotBeMeasuredIsGivenUpToo) {
  const int other = open(Path().c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  system.Fail(kFstat, EIO, 100'000);
  EXPECT_EQ(Append(3), "Another program keeps the file locked");
  EXPECT_LE(system.slept, 3s);
  close(other);
}

// Others that save one record after the other and leave the lock free for moments only.
TEST_F(PuzzleFileFaults, AHeldLockIsGivenUpEvenWhileTheFileGrows) {
  const int other = open(Path().c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  std::uint32_t saved = 2;
  system.onSleep = [&] {
    ASSERT_LT(saved, 20'000u) << "waits without end";
    const PuzzleRecord record = NumberedRecord(saved);
    ASSERT_EQ(pwrite(other, &record, sizeof record, static_cast<off_t>(saved * kRecordSize)), 243);
    ++saved;
  };
  EXPECT_EQ(Append(3), "Another program keeps the file locked");
  EXPECT_LE(system.slept, 3s);
  EXPECT_EQ(RecordsOf(Path()).size(), saved);
  close(other);
}

// The file is locked by another program, which does `away` with it before it lets go.
class FileVanishesFromUnderAWaitingSave : public PuzzleFileFaults {
 protected:
  void SaveWhile(const std::function<void()>& away) {
    const int other = open(Path().c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(other, LOCK_EX), 0);
    int naps = 0;
    system.onSleep = [&] {
      if (++naps != 20) return;
      away();
      flock(other, LOCK_UN);
    };
    AppendWell(3);
    close(other);
  }
  std::filesystem::path Elsewhere() const { return folder.Path() / "elsewhere"; }
};

TEST_F(FileVanishesFromUnderAWaitingSave, ADeletedFileIsBegunAnew) {
  SaveWhile([this] { std::filesystem::remove(Path()); });
  EXPECT_EQ(Contents(), BytesOf(NumberedRecord(3)));
}

TEST_F(FileVanishesFromUnderAWaitingSave, AMovedFileIsLeftAsItIs) {
  const std::string before = Contents();
  SaveWhile([this] { std::filesystem::rename(Path(), Elsewhere()); });
  EXPECT_EQ(ReadFile(Elsewhere()), before);
  EXPECT_EQ(Contents(), BytesOf(NumberedRecord(3)));
}

TEST_F(FileVanishesFromUnderAWaitingSave, TheRecordGoesToTheFileThatTookItsPlace) {
  const std::string other = BytesOf(NumberedRecord(7));
  SaveWhile([&] {
    WriteFile(Elsewhere(), other);
    std::filesystem::rename(Elsewhere(), Path());
  });
  EXPECT_EQ(Contents(), other + BytesOf(NumberedRecord(3)));
}

TEST_F(PuzzleFileFaults, AFileThatIsMovedAgainAndAgainIsGivenUp) {
  system.onStat = [this] {
    system.slept += 100ms;
    std::filesystem::remove(Path());
  };
  EXPECT_EQ(Append(3), "Another program keeps moving the file");
  EXPECT_LE(system.slept, 3s);
  EXPECT_EQ(system.Made(kPwrite), 0);
  EXPECT_EQ(system.Made(kOpen), system.Made(kClose));
}

TEST_F(PuzzleFileFaults, ARecordThatWasGivenUpIsNotWritten) {
  WriteClaim claim;
  ASSERT_TRUE(claim.Take());
  EXPECT_EQ(ErrorOf(AppendPuzzle(Path().string(), NumberedRecord(3), system, claim)), "Given up");
  EXPECT_EQ(system.Made(kPwrite), 0);
  EXPECT_EQ(RecordsOf(Path()).size(), 2u);
}

TEST_F(PuzzleFileFaults, TheLockIsReleasedAfterASave) {
  AppendWell(3);
  const int other = open(Path().c_str(), O_RDWR | O_CLOEXEC);
  EXPECT_EQ(flock(other, LOCK_EX | LOCK_NB), 0);
  close(other);
}

}  // namespace
}  // namespace tessel
