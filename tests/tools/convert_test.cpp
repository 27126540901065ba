#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "tests/fakes/temporary_folder.h"
#include "tests/formats/example.h"
#include "tests/source_folder.h"
#include "tests/tools/command_line.h"

namespace tessel {
namespace {

using formats::ExampleIn;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kExamples = SourceFolder() + "/tests/formats/golden/irregular.";

Outcome Convert(const std::string& to, const std::string& from) {
  return RunTessel({"convert", "--to", to, kExamples + from});
}

std::string Contents(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Convert, WritesEveryFormat) {
  for (const std::string to : {"sds", "text", "drawing", "sudokupad", "f-puzzles", "solo",
                               "sumocue", "ksudoku", "csv", "jsonl"}) {
    const Outcome outcome = Convert(to, "sds");
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(outcome.out, ExampleIn(to)) << to;
  }
}

TEST(Convert, ReadsEveryFormat) {
  for (const std::string from : {"sds", "text", "sudokupad", "f-puzzles", "solo", "sumocue"}) {
    EXPECT_EQ(Convert("text", from).out.substr(0, 81), formats::kExampleGivens) << from;
  }
}

TEST(Convert, TellsOnceWhatIsLeftOut) {
  const std::string puzzles = ExampleIn("sds") + ExampleIn("sds");
  const Outcome outcome = RunTessel({"convert", "--to", "text"}, puzzles);
  EXPECT_EQ(outcome.err, "left out, because text cannot hold them: solutions\n");
  EXPECT_EQ(outcome.code, 0);
}

TEST(Convert, RefusesWhatWouldBecomeAnotherPuzzle) {
  const Outcome outcome = Convert("sdm", "text");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_EQ(outcome.err, kExamples +
                             "text:1: cannot be written in sdm: its cages are irregular, and .sdm "
                             "would make 3x3 boxes of them\n");
}

TEST(Convert, GoesOnAfterABadLine) {
  const Outcome outcome = RunTessel({"convert", "--to", "solo"}, "nonsense\n" + ExampleIn("text"));
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.out, ExampleIn("solo"));
  EXPECT_THAT(outcome.err, HasSubstr("standard input:1:1: expected "));
}

TEST(Convert, TellsAHundredFaultsAndTheirNumber) {
  std::string lines;
  for (int i = 0; i < 150; ++i) lines += "nonsense\n";
  const Outcome outcome = RunTessel({"convert", "--to", "text"}, lines);
  EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 101);
  EXPECT_THAT(outcome.err, HasSubstr("\n... and 50 more\n"));
}

TEST(Convert, HoldsOnePuzzleInAFileOfKSudoku) {
  const Outcome outcome =
      RunTessel({"convert", "--to", "ksudoku"}, ExampleIn("text") + ExampleIn("text"));
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.out, ExampleIn("ksudoku"));
  EXPECT_THAT(outcome.err, HasSubstr("standard input:2: "));
}

TEST(Convert, ColumnsAreChosen) {
  const Outcome outcome = RunTessel({"convert", "--to", "csv", "--columns", "index,givens",
                                     kExamples + "text", kExamples + "sds"});
  EXPECT_EQ(outcome.out, "index,givens\n0,24\n1,24\n");
  EXPECT_EQ(RunTessel({"convert", "--to", "csv", "--columns", "nonsense"}).code, 2);
  EXPECT_EQ(RunTessel({"convert", "--to", "text", "--columns", "index"}).code, 2);
}

TEST(Convert, WrongFormatsAreOneLine) {
  const Outcome outcome = RunTessel({"convert", "--to", "nonsense"});
  EXPECT_EQ(outcome.code, 2);
  EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1);
  EXPECT_EQ(RunTessel({"convert", "--to", "text", "--from", "csv"}).code, 2);
  EXPECT_EQ(RunTessel({"convert"}).code, 2);
}

TEST(Convert, AMissingFileIsTold) {
  const Outcome outcome =
      RunTessel({"convert", "--to", "solo", "/no/such/file", kExamples + "text"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.err, "cannot read /no/such/file: No such file or directory\n");
  EXPECT_EQ(outcome.out, ExampleIn("solo"));
}

class ConvertedFile : public testing::Test {
 protected:
  Outcome Write(std::vector<std::string> more = {}) {
    std::vector<std::string> arguments{"convert", "--to", "solo", "-o", path, kExamples + "text"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return RunTessel(arguments);
  }
  long Files() const {
    return std::distance(std::filesystem::directory_iterator(folder.Path()), {});
  }

  TemporaryFolder folder;
  const std::string path = folder.Path() / "out.txt";
};

TEST_F(ConvertedFile, IsWritten) {
  EXPECT_EQ(Write().code, 0);
  EXPECT_EQ(Contents(path), ExampleIn("solo"));
  EXPECT_EQ(Files(), 1);
}

TEST_F(ConvertedFile, IsNotReplacedUnlessForced) {
  std::ofstream(path) << "mine";
  const Outcome refused = Write();
  EXPECT_EQ(refused.code, 1);
  EXPECT_THAT(refused.err, HasSubstr(path + " exists already (--force replaces it)"));
  EXPECT_EQ(Contents(path), "mine");
  EXPECT_EQ(Write({"--force"}).code, 0);
  EXPECT_EQ(Contents(path), ExampleIn("solo"));
  EXPECT_EQ(Files(), 1);
}

TEST_F(ConvertedFile, IsNotThereWhenTheWorkIsStopped) {
  const Outcome outcome = RunShell("{ cat; sleep 5; } | \"$tessel\" convert --to solo -o '" + path +
                                       "' & sleep 0.5; kill -TERM $!; wait $!",
                                   ExampleIn("text"));
  EXPECT_EQ(outcome.code, 143);
  EXPECT_EQ(Files(), 0);
}

TEST_F(ConvertedFile, KeepsALinkAndReplacesWhatItPointsTo) {
  std::ofstream(folder.Path() / "real.txt") << "mine";
  std::filesystem::create_symlink("real.txt", path);
  EXPECT_EQ(Write({"--force"}).code, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(path));
  EXPECT_EQ(Contents(folder.Path() / "real.txt"), ExampleIn("solo"));
}

}  // namespace
}  // namespace tessel
