#include <gtest/gtest.h>

#include "tests/formats/pairs.h"
#include "tests/formats/random_puzzle.h"

namespace tessel::formats {
namespace {

TEST(RoundTrips, EveryPairOfFormatsBringsPuzzlesBack) {
  for (std::uint64_t index = 0; index < 5; ++index) {
    for (const Format& first : AllFormats()) {
      for (const Format& second : AllFormats()) {
        if (!first.IsRead() || !second.IsRead()) continue;
        PairTally tally;
        TryPair(first, second, RandomPuzzle(1, index).puzzle, tally);
        TryPair(first, second, RandomRegularPuzzle(1, index).puzzle, tally);
        EXPECT_EQ(tally.first, "");
        EXPECT_EQ(tally.equal + tally.refused, 2);
      }
    }
  }
}

// f-puzzles alone keeps what a player did.
TEST(RoundTrips, PlayersDigitsAndMarksComeBack) {
  DescribedPuzzle puzzle = RandomPuzzle(2, 0);
  Grid placed{};
  MaskBoard marks{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (puzzle.puzzle.givens[cell] != 0) continue;
    if (cell % 3 == 0) placed[cell] = static_cast<std::uint8_t>(1 + cell % 9);
    if (cell % 3 == 1) marks[cell] = static_cast<Mask>(1 + 5 * cell);
  }
  puzzle.placed = placed;
  puzzle.pencilMarks = marks;
  puzzle.title = "M\xC3\xBCnchen \xF0\x9F\x8C\x8D \"1\"";
  puzzle.author = "A & <B>";
  const Format& format = *FormatNamed("f-puzzles");
  EXPECT_EQ(format.read(format.write(puzzle).value()).value(), puzzle);
}

}  // namespace
}  // namespace tessel::formats
