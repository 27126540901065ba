#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "core/board.h"
#include "formats/f_puzzles.h"
#include "tests/fakes/temporary_folder.h"
#include "tests/formats/example.h"
#include "tests/tools/command_line.h"

namespace tessel {
namespace {

using formats::ExampleIn;
using testing::HasSubstr;
using testing::StartsWith;

TEST(Explain, TellsTheWholeWay) {
  const Outcome outcome = RunTessel({"explain"}, ExampleIn("text"));
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, StartsWith("Puzzle 1\n\n57 cells to fill, in 59 steps.\n"));
  EXPECT_THAT(outcome.out, HasSubstr("\n1. Naked single\nNaked single at cell E5.\n"));
  EXPECT_THAT(outcome.out, HasSubstr("The puzzle is solved.\n"));
}

TEST(Explain, WritesPagesThatAreNotReplacedUnlessForced) {
  const TemporaryFolder folder;
  for (const std::string name : {"way.html", "way.pdf", "way.txt"}) {
    const std::string path = (folder.Path() / name).string();
    EXPECT_EQ(RunTessel({"explain", "-o", path}, ExampleIn("text")).code, 0) << name;
    EXPECT_GT(std::filesystem::file_size(path), 10'000U) << name;
    EXPECT_THAT(RunTessel({"explain", "-o", path}, ExampleIn("text")).err, HasSubstr("--force"));
    EXPECT_EQ(RunTessel({"explain", "--force", "-o", path}, ExampleIn("text")).code, 0) << name;
  }
  const std::string text = RunShell("pdftotext " + (folder.Path() / "way.pdf").string() + " -").out;
  EXPECT_THAT(text, HasSubstr("Naked single at cell E5."));
}

TEST(Explain, OtherOutputsAreWrongOptions) {
  EXPECT_EQ(RunTessel({"explain", "-o", "way.doc"}).code, 2);
  EXPECT_EQ(RunTessel({"explain", "-o", "way.pdf", "--page", "tiny"}).code, 2);
}

TEST(Explain, AnInputWithoutPuzzlesFails) {
  const Outcome outcome = RunTessel({"explain"}, "# nothing but a comment\n");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.err, "tessel explain: there is nothing to explain\n");
}

TEST(Explain, GoesOnAfterAPuzzleThatHasNoWay) {
  const std::string empty = std::string(81, '.') + " " + std::string(formats::kExampleCages);
  const Outcome outcome = RunTessel({"explain"}, empty + "\n" + ExampleIn("text"));
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.err, "standard input:1: not explained: it has several solutions\n");
  EXPECT_THAT(outcome.out, StartsWith("Puzzle 2\n"));
}

// Where a player has placed all but C6 and F3.
formats::DescribedPuzzle NearlySolved() {
  formats::DescribedPuzzle described = formats::Example();
  const Puzzle& puzzle = described.puzzle;
  described.placed.emplace();
  for (int cell = 0; cell < kCellCount; ++cell) {
    const bool open = puzzle.givens[cell] != 0 || cell == 23 || cell == 47;
    (*described.placed)[cell] = open ? std::uint8_t{0} : (*puzzle.solution)[cell];
  }
  described.pencilMarks.emplace();
  return described;
}

Outcome ExplainFromHere(const formats::DescribedPuzzle& described) {
  return RunTessel({"explain", "--from-here"}, *formats::WriteFPuzzles(described) + "\n");
}

TEST(Explain, GoesOnFromWhereThePlayerStands) {
  const Outcome outcome = ExplainFromHere(NearlySolved());
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("2 cells to fill, in 2 steps.\n"));
  EXPECT_THAT(outcome.out, HasSubstr("The puzzle is solved.\n"));
}

TEST(Explain, TellsAPlayersMistakes) {
  formats::DescribedPuzzle wrong = NearlySolved();
  (*wrong.placed)[0] = 1;
  const Outcome digit = ExplainFromHere(wrong);
  EXPECT_EQ(digit.code, 1);
  EXPECT_THAT(digit.err, HasSubstr("not explained: "));
  EXPECT_THAT(digit.err, HasSubstr("A1"));

  formats::DescribedPuzzle lost = NearlySolved();
  (*lost.pencilMarks)[23] = BitOf((*lost.puzzle.solution)[23] % kSide + 1);
  EXPECT_THAT(ExplainFromHere(lost).err, HasSubstr("C6"));
}

}  // namespace
}  // namespace tessel
