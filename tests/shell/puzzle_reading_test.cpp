// What the window reads, and what it says of it before it opens a puzzle.
#include "shell/puzzle_reading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "shell/puzzle_check.h"
#include "tests/fakes/temporary_folder.h"
#include "tests/formats/example.h"

namespace tessel {
namespace {

using formats::Example;
using formats::ExampleIn;
using testing::HasSubstr;

FirstPuzzles Read(std::string text) {
  return ReadFirstPuzzles(TextSource(std::move(text)), "clipboard");
}

TEST(PuzzleReading, FindsThePuzzleInEveryFormatThatIsRead) {
  for (const formats::Format& format : formats::AllFormats()) {
    if (!format.IsRead() || format.name == "sdm") continue;
    const FirstPuzzles first = Read(ExampleIn(format.name));
    EXPECT_EQ(first.fault, "") << format.name;
    ASSERT_EQ(first.puzzles.size(), 1u) << format.name;
    EXPECT_EQ(first.puzzles[0].layout, Example().puzzle.layout) << format.name;
    EXPECT_EQ(first.puzzles[0].givens, Example().puzzle.givens) << format.name;
  }
}

TEST(PuzzleReading, TellsWhereAndWhatWasExpected) {
  const FirstPuzzles first = Read("# mine\nhello\n");
  EXPECT_TRUE(first.puzzles.empty());
  EXPECT_EQ(first.fault,
            "clipboard:2:1: expected a puzzle in one of the formats that are read, found 'hello'");
  std::string line = ExampleIn("text");
  line[3] = 'x';
  EXPECT_THAT(Read(line).fault, HasSubstr("clipboard:1:4: expected"));
}

TEST(PuzzleReading, TellsSeveralAndGoesOnBehindAFault) {
  const std::string line = ExampleIn("text");
  const FirstPuzzles first = Read("?\n" + line + "\n" + line + "\n" + line);
  EXPECT_EQ(first.puzzles.size(), 2u);
  EXPECT_THAT(first.fault, HasSubstr("clipboard:1:1"));
}

TEST(PuzzleReading, LooksNoFurtherThanAMegabyte) {
  std::size_t given = 0;
  const auto endless = [&given](std::span<char> bytes) {
    std::ranges::fill(bytes, '\n');
    given += bytes.size();
    return bytes.size();
  };
  EXPECT_TRUE(ReadFirstPuzzles(endless, "endless").puzzles.empty());
  EXPECT_EQ(given, std::size_t{1} << 20);
}

TEST(PuzzleReading, ReadsFilesAndRefusesWhatIsNone) {
  const TemporaryFolder folder;
  const std::string path = (folder.Path() / "a.txt").string();
  EXPECT_EQ(FileSource(path).error(), "cannot read " + path + ": No such file or directory");
  std::ofstream(path) << ExampleIn("text");
  EXPECT_EQ(ReadFirstPuzzles(*FileSource(path), "a.txt").puzzles.size(), 1u);
  EXPECT_THAT(FileSource("/dev/zero").error(), HasSubstr("Not a regular file"));
  const std::string pipe = (folder.Path() / "pipe").string();
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_THAT(FileSource(pipe).error(), HasSubstr("Not a regular file"));
}

TEST(PuzzleCheck, GivesTheOneSolution) {
  Puzzle puzzle = Example().puzzle;
  puzzle.solution.reset();
  const PuzzleCheck check = CheckPuzzle(puzzle);
  EXPECT_EQ(check.verdict, "one");
  EXPECT_EQ(check.puzzle, Example().puzzle);
}

TEST(PuzzleCheck, SaysWhySeveralOrNone) {
  Puzzle puzzle = Example().puzzle;
  puzzle.givens[1] = puzzle.givens[79] = 0;
  PuzzleCheck check = CheckPuzzle(puzzle);
  EXPECT_EQ(check.puzzle, std::nullopt);
  EXPECT_EQ(check.found.size(), 2u);
  EXPECT_THAT(check.verdict, testing::MatchesRegex("several: [A-J][1-9] is [1-9] or [1-9].*"));
  puzzle = Example().puzzle;
  puzzle.givens[0] = puzzle.givens[1];
  check = CheckPuzzle(puzzle);
  EXPECT_EQ(check.puzzle, std::nullopt);
  EXPECT_EQ(check.verdict, "none: 8 is given twice in row 1, A1 and A2");
}

TEST(PuzzleCheck, AnEmptyBoardHasSeveralSolutions) {
  EXPECT_THAT(CheckPuzzle({Example().puzzle.layout, {}, {}}).verdict,
              testing::StartsWith("several: "));
}

}  // namespace
}  // namespace tessel
