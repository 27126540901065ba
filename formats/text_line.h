// The text line: 81 givens and 81 cages, one puzzle a line.
//
//   line   = [space] givens [space] cages [space]     white space may stand between any two cells
//   givens = 81 of digit 1..9 | empty                 empty: '.' or '0', one kind in a puzzle
//   cages  = 81 of digit | letter                     nine kinds, nine times each, connected
//
// Written as 81 characters, a space, 81 characters: empty '.', cages 1..9. A solution is never
// written, because a third group of 81 breaks readers elsewhere.
#pragma once

#include "formats/format.h"

namespace tessel::formats {

bool LooksLikeTextLine(std::string_view line);
Reading ReadTextLine(std::string_view line);
Writing WriteTextLine(const DescribedPuzzle& puzzle);

}  // namespace tessel::formats
