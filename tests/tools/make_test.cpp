#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

#include "tests/tools/made_file.h"

namespace tessel {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

using MakeCommand = MadeFile;

std::vector<std::string> Lines(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

TEST_F(MakeCommand, OnePuzzleOfASeedThatIsTold) {
  const Outcome outcome = Make("");
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.out.size(), 164U);
  EXPECT_THAT(outcome.err, testing::MatchesRegex("seed [0-9]+\n"));
  const std::string seed = outcome.err.substr(5, outcome.err.size() - 6);
  EXPECT_EQ(Make("--seed " + seed).out, outcome.out);
}

// What a seed makes is promised for ever. Another hash needs another stream.
struct Recorded {
  const char* options;
  const char* sha256;
};
class RecordedStream : public testing::TestWithParam<Recorded> {};

TEST_P(RecordedStream, IsTheSameForEver) {
  const Outcome outcome = RunShell("\"$tessel\" make --seed 1 --tries 1000 --format sds " +
                                   std::string(GetParam().options) + " | sha256sum");
  EXPECT_EQ(outcome.out, std::string(GetParam().sha256) + "  -\n");
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, RecordedStream,
    testing::Values(Recorded{"--layout random --conceal single",
                             "47d6a5333ac43ecf23772ba06160e276461c639ef104a968cbb8f6c5c02f6716"},
                    Recorded{"--layout random --conceal pairs",
                             "f446cc5ed47a1d6150be20231162ea31ed19d4b8594fc980e9ba1d07b93acc2c"},
                    Recorded{"--layout rotational --conceal single",
                             "08e0e0cedb76379895c5b1fd22ae1831bcb912b416404ed9b8203920f05f3add"},
                    Recorded{"--layout rotational --conceal pairs",
                             "83c56c7df076376f86765a41d435df3d7cb8ab3662539d1e9b3bdab9fc9dfe7c"},
                    Recorded{"--layout regular --conceal single",
                             "e68ac0a479089ea4c6c63c68b781022bb5a8c348bbd3e03f1bf3f0c65c10e153"},
                    Recorded{"--layout regular --conceal pairs",
                             "43ad82d7e2a5a1983a6da5b413bdea2db111cc5ae1983f1b29bbc2d27622a1bb"},
                    Recorded{"--minimal",
                             "d7a66715f8c0761fa60092efea9aca71d2eaf16dbd590311f54a0cfa632466ef"}));

TEST_F(MakeCommand, NumberOfThreadsChangesNothing) {
  for (const std::string options : {"--tries 300 --format csv --grade", "--want 40 --level 3-4",
                                    "--tries 300 --unique --format jsonl"}) {
    const std::string expected = Make("--seed 5 --jobs 1 " + options).out;
    EXPECT_FALSE(expected.empty());
    EXPECT_EQ(Make("--seed 5 --jobs 2 " + options).out, expected) << options;
    EXPECT_EQ(Make("--seed 5 --jobs 5 " + options).out, expected) << options;
  }
}

// And no more of them: puzzles are made in batches, whose last one may hold more than are wanted.
TEST_F(MakeCommand, WantTakesTheFirstOnesInTheirOrder) {
  const std::string table = " --format csv --columns index,level";
  std::vector<std::string> hard;
  for (const std::string& line : Lines(Make("--seed 5 --tries 500" + table).out)) {
    if (line.ends_with(",4")) hard.push_back(line);
  }
  std::string expected = "index,level\n";
  for (std::size_t wanted = 1; wanted <= 12; ++wanted) {
    expected += hard.at(wanted - 1) + "\n";
    EXPECT_EQ(Make("--seed 5 --level 4 --want " + std::to_string(wanted) + table).out, expected);
  }
}

TEST_F(MakeCommand, FirstBeginsLater) {
  const auto all = Lines(Make("--seed 5 --tries 50").out);
  EXPECT_EQ(Lines(Make("--seed 5 --tries 20 --first 30").out),
            std::vector(all.begin() + 30, all.end()));
}

TEST_F(MakeCommand, FiltersKeepWhatTheySay) {
  const std::string columns = " --format csv --columns index,level,score,givens";
  const auto all = Lines(Make("--seed 5 --tries 300" + columns).out);
  const auto kept = [&](const auto& keeps) {
    std::vector<std::string> lines{all.front()};
    for (const std::string& line : all) {
      int index = 0;
      int level = 0;
      int score = 0;
      int givens = 0;
      if (std::sscanf(line.c_str(), "%d,%d,%d,%d", &index, &level, &score, &givens) == 4 &&
          keeps(level, score, givens)) {
        lines.push_back(line);
      }
    }
    return lines;
  };
  EXPECT_EQ(Lines(Make("--seed 5 --tries 300 --level 2-3" + columns).out),
            kept([](int level, int, int) { return level == 2 || level == 3; }));
  const auto scored = kept([](int, int score, int) { return score >= 100 && score <= 400; });
  EXPECT_GT(scored.size(), 1U);
  EXPECT_EQ(Lines(Make("--seed 5 --tries 300 --score 100-400" + columns).out), scored);
}

TEST_F(MakeCommand, AStepMustOccur) {
  const Outcome made = Make("--seed 5 --want 5 --step x-wing --manifest m.json");
  EXPECT_EQ(Lines(made.out).size(), 5U);
  EXPECT_THAT(Contents("m.json"), HasSubstr("\"x_wing\": 5"));
}

TEST_F(MakeCommand, TellsTheShareThatPasses) {
  const Outcome outcome = Make("--seed 5 --tries 1500 --level 6");
  EXPECT_THAT(outcome.err,
              testing::ContainsRegex("% of the first 1[0-9]+ puzzles pass; about .* s to go\n"));
  EXPECT_THAT(Make("--seed 5 --tries 1500 --level 6 --quiet").err, IsEmpty());
  EXPECT_THAT(Make("--seed 5 --tries 1500").err, IsEmpty());
}

TEST_F(MakeCommand, TellsThatNothingPassesAndGoesOn) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "100,000 puzzles take minutes under sanitizers; the released build makes them";
#endif
  const Outcome outcome = Make("--seed 5 --tries 100100 --givens 5");
  EXPECT_EQ(outcome.code, 0);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_THAT(outcome.err, HasSubstr("puzzles passes; it goes on until it is stopped"));
}

TEST_F(MakeCommand, ManifestTellsWhatWasMade) {
  Make("--seed 5 --tries 200 --grade --output p.txt --manifest m.json");
  const std::string hash = Shell("sha256sum <p.txt").out.substr(0, 64);
  const std::string manifest = Contents("m.json");
  for (const std::string& part :
       {std::string("\"seed\": 5"), std::string("\"stream\": 1"), std::string("\"tries\": 200"),
        std::string("\"accepted\": 200"), std::string("\"complete\": true"), "\"" + hash + "\"",
        std::string("\"file\": \"p.txt\"")}) {
    EXPECT_THAT(manifest, HasSubstr(part));
  }
  EXPECT_EQ(Files(), 2U);
}

TEST_F(MakeCommand, NothingIsWrittenOver) {
  Put("p.txt", "mine");
  const Outcome outcome = Make("--seed 5 --output p.txt");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("p.txt exists already"));
  EXPECT_EQ(Make("--seed 5 --output q.txt --manifest p.txt").code, 1);
  EXPECT_EQ(Contents("p.txt"), "mine");
  EXPECT_EQ(Files(), 1U);
}

TEST_F(MakeCommand, APuzzleFileIsAppendedTo) {
  const std::string first = Make("--seed 5 --tries 3 --format sds").out;
  const std::string odd(100, 'x');
  Put("p.sds", first + odd);
  EXPECT_EQ(Make("--seed 6 --tries 3 --format sds --output p.sds").code, 0);
  EXPECT_EQ(Contents("p.sds"), first + Make("--seed 6 --tries 3 --format sds").out);
}

class WrongMakeOptions : public testing::TestWithParam<const char*> {};

TEST_P(WrongMakeOptions, AreOneLine) {
  const Outcome outcome = RunShell("\"$tessel\" make " + std::string(GetParam()));
  EXPECT_EQ(outcome.code, 2) << GetParam();
  EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
  EXPECT_THAT(outcome.err, StartsWith("tessel make: "));
  EXPECT_THAT(outcome.out, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    All, WrongMakeOptions,
    testing::Values("--want 1 --tries 1", "--want 0", "--want -3", "--tries x", "--seed -1",
                    "--seed 18446744073709551616", "--seed 1 --shard 0/2", "--tries 9 --shard 0/2",
                    "--seed 1 --tries 9 --shard 2/2", "--seed 1 --tries 9 --shard 1",
                    "--seed 1 --tries 9 --shard 0/2 --unique",
                    "--first 18446744073709551615 --tries 2", "--layout odd", "--conceal odd",
                    "--givens 0", "--givens 82", "--givens 20 --minimal",
                    "--minimal --conceal pairs", "--level 0", "--level 7", "--level 3-2",
                    "--level 3x", "--step odd", "--score 5", "--score 9-5", "--score -5-5",
                    "--format odd", "--columns index", "--format csv --columns odd", "--jobs 0",
                    "--jobs 5000", "--resume --seed 1", "--resume --output p.txt", "--odd", "odd",
                    "--join m.json --seed 1"));

}  // namespace
}  // namespace tessel
