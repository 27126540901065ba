// Puzzles on their way: made as wished beside the window, and carried through every format.
#pragma once

#include <cstdint>

#include "core/puzzle.h"
#include "shell/new_puzzle.h"

namespace tessel {

// Waits for the puzzle that the wish and the seed make.
Puzzle MadeAsWished(const NewPuzzleWish& wish, std::uint64_t seed);

// The puzzle as it comes back when it is written in a format and pasted. Formats are counted from
// 0 on, round after round; one that cannot carry the puzzle is passed over for the next. What does
// not come back the same fails as in a test.
Puzzle Pasted(const Puzzle& puzzle, std::size_t format);

}  // namespace tessel
