// Puzzles of any shape for round trips: nothing makes them solvable.
#pragma once

#include <cstdint>

#include "formats/described_puzzle.h"

namespace tessel::formats {

// Connected cages, reached from the boxes by exchanges of cells at their borders; givens and a
// solution of any digits.
DescribedPuzzle RandomPuzzle(std::uint64_t seed, std::uint64_t index);
// The same with the boxes as cages.
DescribedPuzzle RandomRegularPuzzle(std::uint64_t seed, std::uint64_t index);

}  // namespace tessel::formats
