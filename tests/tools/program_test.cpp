#include <gmock/gmock.h>

#include "tests/tools/command_line.h"

namespace tessel {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST(Program, TellsItsVersion) {
  const Outcome outcome = RunTessel({"--version"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.out, "tessel " TESSEL_VERSION "\n");
}

TEST(Program, HelpListsTheCommands) {
  const Outcome outcome = RunTessel({"--help"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_THAT(outcome.out, HasSubstr("\n  formats "));
  EXPECT_THAT(outcome.err, IsEmpty());
}

TEST(Program, WrongOptionsAreOneLineAndExitTwo) {
  const std::vector<std::vector<std::string>> wrong{
      {}, {"--frobnicate"}, {"frobnicate"}, {"formats", "--frobnicate"}, {"formats", "more"}};
  for (const auto& arguments : wrong) {
    const Outcome outcome = RunTessel(arguments);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.out, IsEmpty());
    EXPECT_THAT(outcome.err, StartsWith("tessel"));
    EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << outcome.err;
  }
}

TEST(Program, NamesACommandThatDoesNotExist) {
  EXPECT_THAT(RunTessel({"frobnicate"}).err, HasSubstr("no command 'frobnicate'"));
}

TEST(Program, FullDiskIsTold) {
  const Outcome outcome = RunShell("\"$tessel\" formats >/dev/full");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("cannot write standard output: No space left on device"));
}

TEST(Program, ClosedPipeIsQuiet) {
  const Outcome outcome = RunShell("{ sleep 0.2; \"$tessel\" formats; echo $? >&2; } | true");
  EXPECT_EQ(outcome.err, "141\n");
}

}  // namespace
}  // namespace tessel
