// What there is to say about the solutions of a puzzle, in words.
#pragma once

#include <string>
#include <vector>

#include "core/puzzle.h"

namespace tessel::solver {

// What a cell 0..80 is called.
using CellNamer = std::string (*)(int cell);

// `completions` are those of the puzzle's givens, two at most. "one"; "none: ", and the least that
// explains it; or "several: ", and where the first two differ.
std::string VerdictOf(const Puzzle& puzzle, const std::vector<Grid>& completions, CellNamer nameOf);

}  // namespace tessel::solver
