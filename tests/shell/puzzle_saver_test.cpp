#include "shell/puzzle_saver.h"

#include <gmock/gmock.h>

#include <atomic>
#include <future>
#include <thread>

#include "tests/fakes/test_program.h"
#include "tests/shell/enabled_buttons.h"
#include "tests/shell/puzzle_file_test.h"

namespace tessel {
namespace {

// A disk whose chosen call does not return before the test lets it; saves run on threads, and the
// clock goes when the test says so.
class SlowDisk final : public PosixCalls {
 public:
  explicit SlowDisk(SystemCall held) : held_(held) {}
  ~SlowDisk() override { Release(); }

  int Open(const char* path, int flags, mode_t mode) override {
    HoldIf(SystemCall::kOpen);
    return PosixCalls::Open(path, flags, mode);
  }
  int Fsync(int file) override {
    HoldIf(SystemCall::kFsync);
    return PosixCalls::Fsync(file);
  }
  std::int64_t Milliseconds() override { return now; }
  void Start(std::function<void()> work) override { saver_ = std::thread(std::move(work)); }

  // Waits until a save is held in the call.
  void WaitForHold() { reached_.get_future().wait(); }
  // Lets the save go on, and waits for its end.
  void Release() {
    if (!saver_.joinable()) return;
    released_.set_value();
    saver_.join();
  }

  std::atomic<std::int64_t> now = 0;

 private:
  void HoldIf(SystemCall call) {
    if (call != held_) return;
    reached_.set_value();
    released_.get_future().wait();
  }

  const SystemCall held_;
  std::promise<void> reached_;
  std::promise<void> released_;
  std::thread saver_;
};

class SlowSave : public testing::Test {
 protected:
  // Saves on the disk; time runs out while the save is held.
  std::optional<std::string> RunOutOfTime(SlowDisk& disk) {
    return ErrorOf(SavePuzzle(folder.PuzzleFile().string(), NumberedRecord(1), disk, [&] {
      if (meanwhiles++ == 0) disk.WaitForHold();
      disk.now += 1'000;
    }));
  }

  TemporaryFolder folder;
  int meanwhiles = 0;
};

TEST_F(SlowSave, IsGivenUpAfterThreeSecondsAndNeverWrittenWhereItsWritingHasNotBegun) {
  SlowDisk disk(SystemCall::kOpen);
  EXPECT_EQ(RunOutOfTime(disk), "The disk does not answer");
  EXPECT_EQ(meanwhiles, 3);
  disk.Release();
  EXPECT_EQ(ReadFile(folder.PuzzleFile()), "");
}

TEST_F(SlowSave, IsToldToBeUndecidedAfterThreeSecondsWhereItsWritingHasBegun) {
  SlowDisk disk(SystemCall::kFsync);
  EXPECT_EQ(RunOutOfTime(disk), "The disk is slow; the puzzle may still arrive");
  disk.Release();
  EXPECT_EQ(ReadFile(folder.PuzzleFile()), BytesOf(NumberedRecord(1)));
}

TEST_F(SlowSave, IsWaitedForUpToThatTime) {
  SlowDisk disk(SystemCall::kFsync);
  const auto number = SavePuzzle(folder.PuzzleFile().string(), NumberedRecord(1), disk, [&] {
    if (meanwhiles++ > 0) return;
    disk.WaitForHold();
    disk.now += 2'999;
    disk.Release();
  });
  EXPECT_EQ(number, 1);
  EXPECT_EQ(ReadFile(folder.PuzzleFile()), BytesOf(NumberedRecord(1)));
}

TEST(Save, IsDoneWithoutAThreadWhereNoneCanBeHad) {
  const TemporaryFolder folder;
  FakeSystemCalls system;
  int meanwhiles = 0;
  EXPECT_EQ(
      SavePuzzle(folder.PuzzleFile().string(), NumberedRecord(1), system, [&] { ++meanwhiles; }),
      1);
  EXPECT_EQ(meanwhiles, 0);
  EXPECT_EQ(RecordsOf(folder.PuzzleFile()).size(), 1u);
}

TEST(Save, FailsWithTheWordsOfTheSystem) {
  const TemporaryFolder folder;
  EXPECT_EQ(
      ErrorOf(SavePuzzle(folder.Path().string(), NumberedRecord(1), RealSystemCalls(), [] {})),
      "Is a directory");
}

// The window while Conceal waits for the disk.
TEST(WindowDuringASlowSave, IsPumpedAndRefusesToClose) {
  SlowDisk disk(SystemCall::kFsync);
  TestProgram program(1, disk);
  program.Tick(CheckBox::MakeRegular);
  int pumps = 0;
  program.view.onPump = [&](long) {
    if (program.view.beeps == 0) return;  // still concealing
    if (pumps++ == 0) disk.WaitForHold();
    EXPECT_FALSE(program.main.Form_QueryUnload());
    EXPECT_EQ(EnabledButtons(program.Display()), kConcealing);
    disk.now += 1'000;
  };
  program.MakePuzzle();
  EXPECT_EQ(pumps, 3);
  EXPECT_TRUE(program.view.questions.empty());
  EXPECT_EQ(EnabledButtons(program.Display()), kPuzzleConcealed);
  EXPECT_THAT(program.Display().Notice(), testing::EndsWith("the puzzle may still arrive"));
  disk.Release();
  EXPECT_EQ(RecordsOf(program.folder.PuzzleFile()).size(), 1u);
}

}  // namespace
}  // namespace tessel
