// Shards of a run, and how they are put together.
#include <gmock/gmock.h>

#include <regex>

#include "tests/source_folder.h"
#include "tests/tools/made_file.h"

namespace tessel {
namespace {

using testing::HasSubstr;

class JoinedMake : public MadeFile {
 protected:
  const std::string run = "--seed 5 --tries 500 --format csv --grade --level 2-6 ";

  void MakeShards(int count) const {
    for (int k = 0; k < count; ++k) {
      const std::string number = std::to_string(k);
      const Outcome outcome = Make(run + "--shard " + number + "/" + std::to_string(count) +
                                   " --output " + number + ".csv --manifest " + number + ".json");
      ASSERT_EQ(outcome.code, 0) << outcome.err;
    }
  }
  // What must differ from run to run is the time.
  static std::string WithoutTimes(const std::string& manifest) {
    return std::regex_replace(manifest, std::regex("_seconds\": [0-9.e+-]+"), "");
  }
  void ExpectRefused(const std::string& manifests, const std::string& reason) const {
    const Outcome outcome = Make("--output all.csv --join " + manifests);
    EXPECT_EQ(outcome.code, 1);
    EXPECT_THAT(outcome.err, HasSubstr(reason));
    EXPECT_FALSE(std::filesystem::exists(Path("all.csv")));
  }
};

TEST_F(JoinedMake, IsTheRunWithoutShards) {
  MakeShards(7);
  ASSERT_EQ(Make(run + "--output whole.csv --manifest whole.json").code, 0);
  const std::string whole = Contents("whole.csv");
  EXPECT_EQ(Make("--join 3.json 0.json 1.json 2.json 6.json 5.json 4.json").out, whole);
  std::filesystem::create_directory(Path("in"));
  const Outcome joined = Make("--output in/whole.csv --manifest in/whole.json --join [0-6].json");
  EXPECT_EQ(joined.code, 0) << joined.err;
  EXPECT_EQ(Contents("in/whole.csv"), whole);
  EXPECT_EQ(WithoutTimes(Contents("in/whole.json")), WithoutTimes(Contents("whole.json")));
}

TEST_F(JoinedMake, MoreShardsThanPuzzlesAreJoinedToo) {
  std::string joined;
  for (int k = 0; k < 5; ++k) {
    joined += Make("--seed 5 --tries 3 --shard " + std::to_string(k) + "/5").out;
  }
  EXPECT_EQ(joined, Make("--seed 5 --tries 3").out);
}

TEST_F(JoinedMake, WhatDoesNotBelongTogetherIsRefused) {
  MakeShards(3);
  ExpectRefused("0.json 2.json", "shard 1 of 3 is missing");
  ExpectRefused("0.json 1.json", "shard 2 of 3 is missing");
  ExpectRefused("0.json 1.json 1.json 2.json", "tell of the same shard");
  ExpectRefused("0.json 1.json none.json", "cannot read none.json");
  Make("--seed 6 --tries 500 --shard 2/3 --output x.csv --manifest x.json");
  ExpectRefused("0.json 1.json x.json", "belong to different runs");
  Make("--seed 6 --tries 5 --output y.csv --manifest y.json");
  ExpectRefused("y.json", "does not tell of a shard");
  Put("z.json", "{}");
  ExpectRefused("z.json", "is no manifest of a run");
}

TEST_F(JoinedMake, ChangedShardsAreRefused) {
  MakeShards(3);
  std::string bytes = Contents("1.csv");
  bytes[10] ^= 1;
  Put("1.csv", bytes);
  ExpectRefused("[0-2].json", "1.csv is not what 1.json tells of");
  EXPECT_EQ(Make("--join 0.json 1.json 2.json").out, "");
}

TEST_F(JoinedMake, AnUnfinishedShardIsRefused) {
  const Outcome outcome = Shell(
      "\"$tessel\" make --seed 5 --tries 100000000 --shard 0/2 --output p.txt --manifest p.json & "
      "until [ -s p.txt ]; do sleep 0.01; done; kill -INT $!; wait $!");
  EXPECT_EQ(outcome.code, 130);
  ExpectRefused("p.json", "the shard of p.json is unfinished");
}

// The first shard that is begun dies, and is begun again.
TEST_F(JoinedMake, GnuParallelMakesTheShards) {
  Put("dies-once", "#!/bin/sh\nmkdir died 2>/dev/null && kill -9 $$\nexec \"$tessel\" \"$@\"\n");
  const Outcome outcome = Shell("export tessel; chmod +x dies-once; TESSEL=$PWD/dies-once '" +
                                SourceFolder() + "/scale/with-parallel' 5 shards " + run);
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_TRUE(std::filesystem::exists(Path("died")));
  EXPECT_EQ(Contents("shards/whole"), Make(run).out);
}

}  // namespace
}  // namespace tessel
