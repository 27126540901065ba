// Game IDs of Solo, in the Portable Puzzle Collection.
//
//   id    = 9j {word} : grid , walls           word: symmetry and difficulty, skipped
//   word  = a | r number | m [d] number | d letter
//   grid  = 81 cells of digit | run            '_' between two digits;
//                                              run: letters a = 1 .. z = 26, added up
//   walls = {letter}                           edges without a wall before one:
//                                              _ = 0, a = 1 .. y = 25
//
// The 144 edges inside the board: first the 72 between neighbours in a row, row by row, then the 72
// between neighbours in a column, column by column, then one that has a wall always. 'z' means 25
// or 26 edges, depending on the program: it is never written, and refused when read.
#pragma once

#include "formats/format.h"

namespace tessel::formats {

bool LooksLikeSolo(std::string_view line);
Reading ReadSolo(std::string_view line);
// Refuses a layout that has 26 edges without a wall one after the other.
Writing WriteSolo(const DescribedPuzzle& puzzle);

}  // namespace tessel::formats
