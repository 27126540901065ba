// The puzzle file in the hands of programs that write at once, are killed, or have no room.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <set>

#include "core/random_source.h"
#include "tests/shell/puzzle_file_test.h"

namespace tessel {
namespace {

class PuzzleFileProcesses : public PuzzleFileTest {
 protected:
  // A program that saves records first, first + 1, ..., `count` of them.
  pid_t StartSaving(std::uint32_t first, std::uint32_t count) {
    const pid_t child = fork();
    if (child != 0) return child;
    for (std::uint32_t n = first; n < first + count; ++n) {
      if (!AppendPuzzle(Path().string(), NumberedRecord(n), RealSystemCalls())) _exit(1);
    }
    _exit(0);
  }
  static int StatusOf(pid_t child) {
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
  }
};

TEST_F(PuzzleFileProcesses, TwoProgramsSaveTwoThousandRecordsAndLoseNone) {
  constexpr std::uint32_t each = 1000;
  const pid_t first = StartSaving(0, each);
  const pid_t second = StartSaving(each, each);
  EXPECT_EQ(StatusOf(first), 0);
  EXPECT_EQ(StatusOf(second), 0);
  EXPECT_EQ(std::filesystem::file_size(Path()), 2 * each * kRecordSize);
  std::set<std::uint32_t> saved;
  for (const PuzzleRecord& record : RecordsOf(Path())) {
    const auto number = NumberOf(record);
    ASSERT_TRUE(number.has_value());
    saved.insert(*number);
  }
  EXPECT_EQ(saved.size(), 2 * each);
  EXPECT_EQ(*saved.rbegin(), 2 * each - 1);
}

// Record number n is saved as n, so that each can be told to be whole and in its place.
class KilledWhileSaving : public PuzzleFileProcesses {
 protected:
  void SaveAndKillAfter(int microseconds) {
    const pid_t child = StartSaving(next_, 100'000);
    usleep(static_cast<useconds_t>(microseconds));
    kill(child, SIGKILL);
    ASSERT_TRUE(WIFSIGNALED(StatusOf(child)));
    ExpectWholeRecords();
  }
  // All but at most a fragment at the end, unless an earlier one was long enough to stay.
  void ExpectWholeRecords() {
    const auto length = static_cast<std::int64_t>(std::filesystem::file_size(Path()));
    ASSERT_GE(RecordsIn(length), next_) << "a record was lost";
    if (length % kRecordSize > kRecordSize / 2) longFragments_.insert(RecordsIn(length) - 1);
    next_ = static_cast<std::uint32_t>(RecordsIn(length));
    const auto records = RecordsOf(Path());
    for (std::uint32_t n = 0; n < records.size(); ++n) {
      ASSERT_TRUE(longFragments_.contains(n) || NumberOf(records[n]) == n) << n;
    }
  }
  void SaveTheNext() {
    AppendWell(next_);
    ASSERT_EQ(std::filesystem::file_size(Path()), ++next_ * kRecordSize);
    ExpectWholeRecords();
  }

  std::uint32_t next_ = 0;
  std::set<std::int64_t> longFragments_;
};

TEST_F(KilledWhileSaving, FiveHundredTimesTheFileKeepsEveryWholeRecord) {
  SeededRandom random(500);
  AppendWell(next_++);
  for (int kill = 0; kill < 500 && !HasFatalFailure(); ++kill) {
    SaveAndKillAfter(DrawIndex(random, 5'000));
    SaveTheNext();
  }
  RecordProperty("records", static_cast<int>(next_));
}

// A real full disk, as far as the program can tell: the system takes no more bytes.
TEST_F(PuzzleFileProcesses, WithoutRoomForAWholeRecordNothingIsLeftBehind) {
  AppendWell(0);
  const pid_t child = fork();
  if (child == 0) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{300, 300};
    setrlimit(RLIMIT_FSIZE, &limit);
    const auto error = ErrorOf(AppendPuzzle(Path().string(), NumberedRecord(1), RealSystemCalls()));
    _exit(error == "No space left on device" ? 0 : 1);
  }
  EXPECT_EQ(StatusOf(child), 0);
  EXPECT_EQ(Contents(), BytesOf(NumberedRecord(0)));
}

}  // namespace
}  // namespace tessel
