// Cage layouts and solved grids by chance, made without the program's generator and search.
#pragma once

#include <array>
#include <optional>

#include "core/random_source.h"

namespace tessel::literal {

using CageMap = std::array<int, 81>;  // cage 1..9 of each cell
using Grid = std::array<int, 81>;     // digit 1..9 of each cell

// The nine 3x3 boxes, numbered row by row.
CageMap RegularLayout();

// Nine connected cages of nine cells: `swaps` exchanges of cells between touching cages, starting
// from the regular layout.
CageMap RandomLayout(RandomSource& random, int swaps = 150);

// Whether every cage has nine cells and hangs together by the cells' sides.
bool IsLayout(const CageMap& cages);

// A solved grid of the layout; none when the layout has none or the search takes too long.
std::optional<Grid> RandomSolution(const CageMap& cages, RandomSource& random);

struct SolvedLayout {
  CageMap cages{};
  Grid solution{};
};

SolvedLayout RegularSolved(RandomSource& random);
SolvedLayout IrregularSolved(RandomSource& random);

}  // namespace tessel::literal
