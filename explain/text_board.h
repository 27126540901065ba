// Boards drawn with characters.
#pragma once

#include <array>
#include <string>

#include "explain/explanation.h"

namespace tessel::explain {

// What stands in each cell: three characters, all of ASCII.
using CellTexts = PerCell<std::string>;

// The cages by their walls, rows A to J and columns 1 to 9 beside them: 20 lines.
std::string Drawn(const Layout& layout, const CellTexts& texts);

// " 7 " for a digit, "   " for an open cell.
CellTexts DigitTexts(const Grid& digits);
// The position after step k: "[7]" is what it placed, " # " the open cells that it looked at, " x "
// those that lost candidates.
CellTexts StepTexts(const Explanation& explanation, std::size_t k);

// A line for each row with the candidates of its cells, "=7" for a digit.
std::string CandidateTable(const grade::CandidateGrid& position);

}  // namespace tessel::explain
