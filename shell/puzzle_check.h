// Whether a puzzle that comes from elsewhere can be opened.
#pragma once

#include <string>
#include <vector>

#include "core/puzzle.h"

namespace tessel {

struct PuzzleCheck {
  std::optional<Puzzle> puzzle;  // with its solution; nothing unless it has exactly one
  std::vector<Grid> found;       // solutions, two at most
  std::string verdict;           // "one", "none: ..." or "several: ...", for the player
};

// What is not decided within some tenths of a second counts as undecided, which the verdict says.
PuzzleCheck CheckPuzzle(const Puzzle& puzzle);

}  // namespace tessel
