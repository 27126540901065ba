// Saved games of KSudoku: an XML document for each puzzle. Only written.
//
// Cells are numbered column by column, in cliques and values alike. values: 81 of '_' for an empty
// cell, or the letter that comes so many after 'a' as the digit says.
#pragma once

#include "formats/format.h"

namespace tessel::formats {

Writing WriteKSudoku(const DescribedPuzzle& puzzle);

}  // namespace tessel::formats
