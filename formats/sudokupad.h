// SudokuPad links.
//
//   link  = https://sudokupad.app/scl payload       payload: see link.h; readers need only "scl"
//   JSON  = {"cells": nine lists of nine cells,
//            "regions": nine lists of nine [row, column],
//            "cages": [],
//            "metadata": {"title", "author", "rules", "solution": 81 digits}}
//   cell  = {} | {"value": 1..9}
//
// Rows and columns from 0. Marks of a player stand as "centremarks" in a cell and are read.
#pragma once

#include "formats/link.h"

namespace tessel::formats {

bool LooksLikeSudokuPad(std::string_view line);
Reading ReadSudokuPad(std::string_view line);
Writing WriteSudokuPad(const DescribedPuzzle& puzzle);

// What the links hold.
Reading SudokuPadFromJson(const Json& root);
OrderedJson SudokuPadJson(const DescribedPuzzle& puzzle);

}  // namespace tessel::formats
