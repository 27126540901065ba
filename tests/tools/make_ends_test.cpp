// The ways in which a run of tessel make ends early, and goes on.
#include <gmock/gmock.h>

#include <algorithm>

#include "tests/tools/made_file.h"

namespace tessel {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class EndedMake : public MadeFile {
 protected:
  // Starts the run, and sends it the signal when the shell's command has ended.
  Outcome Ended(const std::string& options, const std::string& signal,
                const std::string& after) const {
    return Shell("\"$tessel\" make " + options + " & " + after + "; kill -" + signal +
                 " $! 2>/dev/null; wait $!");
  }
  Outcome EndedOnce(const std::string& file, const std::string& options,
                    const std::string& signal) const {
    return Ended(options + " --output " + file, signal,
                 "until [ -s " + file + " ]; do sleep 0.01; done");
  }
};

constexpr std::size_t kLine = 164;
constexpr std::size_t kRecord = 243;

TEST_F(EndedMake, AStopSignalLeavesWholeRecords) {
  const std::string options = "--seed 5 --want 100000000";
  EXPECT_EQ(EndedOnce("a.txt", options, "INT").code, 130);
  EXPECT_EQ(EndedOnce("b.txt", options, "TERM").code, 143);
  for (const std::string name : {"a.txt", "b.txt"}) {
    EXPECT_GT(Contents(name).size(), 0U);
    EXPECT_EQ(Contents(name).size() % kLine, 0U);
    EXPECT_EQ(Contents(name).back(), '\n');
  }
  EXPECT_THAT(Contents("a.txt.unfinished"), HasSubstr("\"complete\": false"));
}

TEST_F(EndedMake, KilledRunsGoOnToTheSameEnd) {
  const std::string run = "--seed 5 --tries 6000 --jobs 2 --grade --format csv";
  const std::string expected = Make(run).out;
  const std::string resumable = run + " --output p.csv --manifest m.json --resume";
  int kills = 0;
  for (const std::string seconds : {"0.05", "0.1", "0.2", "0.3"}) {
    if (Ended(resumable, "KILL", "sleep " + seconds).code == 137) ++kills;
  }
  EXPECT_GT(kills, 0);
  const Outcome last = Make(resumable);
  EXPECT_EQ(last.code, 0) << last.err;
  EXPECT_EQ(Contents("p.csv"), expected);
  EXPECT_THAT(Contents("m.json"), HasSubstr("\"accepted\": 6000"));
  EXPECT_EQ(Files(), 2U);
}

TEST_F(EndedMake, AStateOlderThanTheFileIsCaughtUpWith) {
  const std::string run = "--seed 5 --want 20000 --format sds --jobs 1";
  const std::string expected = Make(run).out;
  for (const std::string more : {"", " --unique"}) {
    ASSERT_EQ(EndedOnce("p.sds", run + more, "INT").code, 130);
    // As if more had been written in the last second before the computer went off.
    const std::size_t written = Contents("p.sds").size();
    ASSERT_LT(written + 1000, expected.size());
    Put("p.sds", expected.substr(0, written + 1000));
    EXPECT_EQ(Make(run + more + " --output p.sds --resume").code, 0);
    EXPECT_EQ(Contents("p.sds"), expected);
    std::filesystem::remove(Path("p.sds"));
  }
}

TEST_F(EndedMake, AFinishedRunIsLeftAsItIs) {
  const std::string run = "--seed 5 --tries 50 --output p.txt --manifest m.json";
  ASSERT_EQ(Make(run).code, 0);
  const std::string before = Contents("p.txt");
  EXPECT_EQ(Make(run + " --resume").code, 0);
  EXPECT_EQ(Contents("p.txt"), before);
}

TEST_F(EndedMake, FilesOfOtherRunsAreRefused) {
  ASSERT_EQ(EndedOnce("p.txt", "--seed 5 --want 1000000", "INT").code, 130);
  const std::string run = "--seed 5 --want 1000000 --output p.txt";
  const std::string before = Contents("p.txt");
  const Outcome other = Make("--seed 6 --want 1000000 --output p.txt --resume");
  EXPECT_EQ(other.code, 1);
  EXPECT_THAT(other.err, HasSubstr("belongs to a run with other options"));
  EXPECT_THAT(Make(run).err, HasSubstr("--resume goes on with it"));
  EXPECT_EQ(Contents("p.txt"), before);

  Put("p.txt", std::string(before.size(), 'x'));
  const Outcome changed = Make(run + " --resume");
  EXPECT_EQ(changed.code, 1);
  EXPECT_THAT(changed.err, HasSubstr("p.txt does not hold what this run has written so far"));
  EXPECT_EQ(Contents("p.txt"), std::string(before.size(), 'x'));

  Put("p.txt", before + "x");
  EXPECT_THAT(Make(run + " --resume").err, HasSubstr("holds other records than those of this run"));
  EXPECT_EQ(Contents("p.txt"), before + "x");
}

TEST_F(EndedMake, AFileWithoutItsStateIsRefused) {
  Put("p.txt", "mine");
  const Outcome outcome = Make("--seed 5 --output p.txt --resume");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("there is no p.txt.unfinished"));
  EXPECT_EQ(Contents("p.txt"), "mine");
}

// Killed after the file was made, or in the middle of the header, and while a state was written.
TEST_F(EndedMake, ARunKilledBeforeItsFirstStateGoesOn) {
  const std::string run = "--seed 5 --tries 20 --jobs 1 --format csv";
  const std::string expected = Make(run).out;
  for (const std::size_t left : {std::size_t{0}, std::size_t{5}, expected.find('\n') + 1}) {
    Put("p.csv", expected.substr(0, left));
    Put("p.csv.unfinished.Ab3dE6", "{");
    const Outcome outcome = Make(run + " --output p.csv --resume");
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(Contents("p.csv"), expected);
    EXPECT_EQ(Files(), 1U);
  }
  Put("p.csv", "mine");
  EXPECT_EQ(Make(run + " --output p.csv --resume").code, 1);
  EXPECT_EQ(Contents("p.csv"), "mine");
}

TEST_F(EndedMake, AClosedPipeIsQuiet) {
  const Outcome outcome =
      Shell("\"$tessel\" make --seed 5 --want 1000000 | head -n 3; exit ${PIPESTATUS[0]}");
  EXPECT_EQ(outcome.code, 141);
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.out.size(), 3 * kLine);
}

TEST_F(EndedMake, AFullDiskIsTold) {
  const Outcome device = Make("--seed 5 --want 10 --output /dev/full");
  EXPECT_EQ(device.code, 1);
  EXPECT_EQ(
      device.err,
      "tessel make: cannot write /dev/full: No space left on device; 0 whole records stand\n");
  const Outcome limited =
      Shell("ulimit -f 300; \"$tessel\" make --seed 5 --tries 20000 --output p.txt");
  EXPECT_EQ(limited.code, 1);
  const std::size_t records = Contents("p.txt").size() / kLine;
  EXPECT_EQ(Contents("p.txt").size() % kLine, 0U);
  EXPECT_GT(records, 0U);
  EXPECT_EQ(limited.err, "tessel make: cannot write p.txt: File too large; " +
                             std::to_string(records) + " whole records stand\n");
  EXPECT_EQ(Make("--seed 5 --tries 20000 --output p.txt --resume").code, 0);
  EXPECT_EQ(Contents("p.txt"), Make("--seed 5 --tries 20000").out);
}

TEST_F(EndedMake, AFolderThatIsMissingIsTold) {
  const Outcome outcome = Make("--seed 5 --output none/p.txt");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("cannot write none/p.txt: No such file or directory"));
}

TEST_F(EndedMake, RecordsOfOthersStayWholeInOneFile) {
  const Outcome outcome = Shell(R"(
    "$tessel" make --seed 5 --tries 3000 --format sds >mine
    "$tessel" make --seed 6 --tries 1 --format sds >other
    "$tessel" make --seed 5 --tries 3000 --format sds --output p.sds & run=$!
    for ((i = 0; i < 40; i++)); do flock p.sds sh -c 'cat other >>p.sds'; done
    wait $run)");
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  const std::string all = Contents("p.sds");
  ASSERT_EQ(all.size(), 3040 * kRecord);
  std::string mine;
  std::size_t others = 0;
  for (std::size_t at = 0; at < all.size(); at += kRecord) {
    const std::string record = all.substr(at, kRecord);
    if (record == Contents("other")) {
      ++others;
    } else {
      mine += record;
    }
  }
  EXPECT_EQ(others, 40U);
  EXPECT_EQ(mine, Contents("mine"));
}

}  // namespace
}  // namespace tessel
