// f-puzzles links.
//
//   link = https://f-puzzles.com/?load= payload     payload: see link.h; SudokuPad's "fpuzzles" too
//   JSON = {"size": 9, "title", "author", "ruleset",
//           "grid": nine lists of nine cells,
//           "solution": 81 digits}
//   cell = {"value": 1..9, "given": true, "region": 0..8}
//
// "value" without "given" is a player's digit. No "region": a 3x3 box. Candidates of a player stand
// as "centerPencilMarks" in a cell. "solution" is a list of numbers; some write a text.
#pragma once

#include "formats/link.h"

namespace tessel::formats {

bool LooksLikeFPuzzles(std::string_view line);
Reading ReadFPuzzles(std::string_view line);
Writing WriteFPuzzles(const DescribedPuzzle& puzzle);

// What the links hold.
Reading FPuzzlesFromJson(const Json& root);
OrderedJson FPuzzlesJson(const DescribedPuzzle& puzzle);

}  // namespace tessel::formats
