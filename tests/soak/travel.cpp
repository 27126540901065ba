#include "tests/soak/travel.h"

#include <gtest/gtest.h>

#include <future>

#include "formats/format.h"
#include "shell/puzzle_check.h"
#include "shell/puzzle_reading.h"
#include "tests/formats/pairs.h"

namespace tessel {

Puzzle MadeAsWished(const NewPuzzleWish& wish, std::uint64_t seed) {
  std::promise<Puzzle> made;
  const NewPuzzleMaking making(wish, seed,
                               [&made](const Puzzle& puzzle) { made.set_value(puzzle); });
  return made.get_future().get();
}

Puzzle Pasted(const Puzzle& puzzle, std::size_t format) {
  const auto formats = formats::AllFormats();
  formats::Writing text;
  while (!text || text->empty()) {
    const formats::Format& to = formats[format++ % formats.size()];
    if (!to.IsRead()) continue;
    text = to.write({.puzzle = puzzle});
    if (text) text->insert(0, to.header);
  }
  const FirstPuzzles read = ReadFirstPuzzles(TextSource(*text), "pasted");
  EXPECT_EQ(read.fault, "") << *text;
  if (read.puzzles.size() != 1) {
    ADD_FAILURE() << "must be one puzzle:\n" << *text;
    return puzzle;
  }
  const PuzzleCheck check = CheckPuzzle(read.puzzles.front());
  EXPECT_EQ(check.verdict, "one") << *text;
  if (!check.puzzle) return puzzle;
  // Formats that draw the cages' borders do not number them.
  EXPECT_TRUE(formats::SamePartition(check.puzzle->layout, puzzle.layout)) << *text;
  EXPECT_EQ(check.puzzle->givens, puzzle.givens) << *text;
  EXPECT_EQ(check.puzzle->solution, puzzle.solution) << *text;
  return *check.puzzle;
}

}  // namespace tessel
