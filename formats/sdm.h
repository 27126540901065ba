// .sdm: 81 givens a line, for puzzles whose cages are the nine 3x3 boxes.
//
//   line = 81 of digit 1..9 | empty                   empty: '.' or '0', one kind in a puzzle
//
// Written with '0'.
#pragma once

#include "formats/format.h"

namespace tessel::formats {

bool LooksLikeSdm(std::string_view line);
Reading ReadSdm(std::string_view line);
// Refuses irregular cages: the line would be another puzzle.
Writing WriteSdm(const DescribedPuzzle& puzzle);

}  // namespace tessel::formats
