#include <gmock/gmock.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/fakes/temporary_folder.h"
#include "tests/formats/example.h"
#include "tests/tools/command_line.h"

namespace tessel {
namespace {

using formats::ExampleIn;
using formats::kExampleCages;
using formats::kExampleSolution;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kEmptyBoxes =
    "................................................................................."
    " 111222333111222333111222333444555666444555666444555666777888999777888999777888999\n";

Outcome Grade(const std::string& puzzles, std::vector<std::string> options = {}) {
  options.insert(options.begin(), "grade");
  return RunTessel(options, puzzles);
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

TEST(GradeCommand, TellsALineForEachPuzzle) {
  const Outcome outcome = Grade(ExampleIn("text") + ExampleIn("text"));
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  const std::vector<std::string> lines = LinesOf(outcome.out);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_THAT(lines[0], HasSubstr("hardest step"));
  EXPECT_THAT(lines[1], StartsWith("     0  "));
  EXPECT_EQ(lines[1].substr(6), lines[2].substr(6));
}

TEST(GradeCommand, TablesAgree) {
  const Outcome csv = Grade(ExampleIn("text"), {"--format", "csv"});
  const Outcome json = Grade(ExampleIn("text"), {"--format", "jsonl"});
  const std::vector<std::string> lines = LinesOf(csv.out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_THAT(lines[0], StartsWith("index,level,name,hardest,score,naked_single,hidden_single,"));
  EXPECT_THAT(lines[1], StartsWith("0,"));
  const auto object = nlohmann::json::parse(json.out);
  EXPECT_THAT(lines[1], HasSubstr("," + std::to_string(object.at("level").get<int>()) + "," +
                                  object.at("name").get<std::string>() + "," +
                                  object.at("hardest").get<std::string>() + "," +
                                  std::to_string(object.at("score").get<int>()) + ","));
}

TEST(GradeCommand, FullBoardNeedsNoStep) {
  const std::string line = std::string(kExampleSolution) + " " + std::string(kExampleCages) + "\n";
  const auto object = nlohmann::json::parse(Grade(line, {"--format", "jsonl"}).out);
  EXPECT_EQ(object.at("level"), 1);
  EXPECT_TRUE(object.at("hardest").is_null());
  EXPECT_TRUE(object.at("stuck").is_null());
  EXPECT_EQ(object.at("score"), 0);
}

TEST(GradeCommand, RefusesPuzzlesWithoutOneSolutionAndGoesOn) {
  const Outcome outcome = Grade(kEmptyBoxes + ExampleIn("text"), {"--format", "csv"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.err, "standard input:1: it has several solutions\n");
  const std::vector<std::string> lines = LinesOf(outcome.out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_THAT(lines[1], StartsWith("1,"));
}

TEST(GradeCommand, OutputDoesNotDependOnJobs) {
  std::string puzzles;
  for (int i = 0; i < 50; ++i) puzzles += i % 7 == 3 ? kEmptyBoxes : ExampleIn("text");
  const Outcome one = Grade(puzzles, {"--jobs", "1", "--summary"});
  const Outcome five = Grade(puzzles, {"--jobs", "5", "--summary"});
  EXPECT_EQ(one.out, five.out);
  EXPECT_EQ(one.err, five.err);
}

TEST(GradeCommand, SummaryFollowsTextAndAccompaniesTables) {
  const Outcome text = Grade(ExampleIn("text"), {"--summary"});
  EXPECT_THAT(text.out, HasSubstr("\n1 puzzle\n"));
  EXPECT_THAT(text.out, HasSubstr("100.0 %  ########################################\n"));
  const Outcome csv = Grade(ExampleIn("text"), {"--summary", "--format", "csv"});
  EXPECT_THAT(csv.err, StartsWith("1 puzzle\n"));
  EXPECT_EQ(LinesOf(csv.out).size(), 2U);
}

TEST(GradeCommand, SummaryOfNothingIsZeros) {
  const Outcome outcome = Grade("", {"--summary"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_THAT(outcome.out, HasSubstr("\n0 puzzles\n"));
  EXPECT_THAT(outcome.out, Not(HasSubstr("#")));
}

TEST(GradeCommand, DrawsAPlot) {
  const TemporaryFolder folder;
  const std::string file = (folder.Path() / "plot.svg").string();
  EXPECT_EQ(Grade(ExampleIn("text"), {"--plot", file}).code, 0);
  std::ifstream stream(file);
  const std::string plot{std::istreambuf_iterator<char>(stream), {}};
  EXPECT_THAT(plot, StartsWith("<svg "));
  EXPECT_THAT(plot, HasSubstr("Levels of 1 puzzle<"));
  EXPECT_THAT(plot, HasSubstr("6 Beyond"));
  EXPECT_THAT(plot, HasSubstr("</svg>\n"));
}

TEST(GradeCommand, WrongOptionsAreExitTwo) {
  EXPECT_EQ(Grade("", {"--format", "xml"}).code, 2);
  EXPECT_EQ(Grade("", {"--jobs", "0"}).code, 2);
}

}  // namespace
}  // namespace tessel
