// What is to be seen on a board: the one value that is drawn on paper, in booklets as in
// explanations.
#pragma once

#include <vector>

#include "core/board.h"
#include "core/cell_set.h"
#include "core/layout.h"
#include "core/puzzle.h"

namespace tessel::paper {

// Marks are shown in cells without a digit only. A mark told in `reasons` or `struck` is shown
// whether `marks` has it or not.
struct BoardPicture {
  Layout layout;
  Grid digits{};
  CellSet givens{};       // cells whose digit is a given, in bold; the others are the player's
  MaskBoard marks{};      // pencil marks, each at its place of a keypad
  MaskBoard reasons{};    // marks that a step rests on: ringed
  MaskBoard struck{};     // marks that a step takes away: crossed out
  CellSet highlighted{};  // cells that a step looks at: on a darker ground
  CellSet placed{};       // cells whose digit a step places: the digit in a ring
  // Houses or other areas that a step looks at: a band along the inside of their edges, solid in
  // the first one and dashed in the others.
  std::vector<CellSet> areas{};
  bool captions = false;  // letters beside the rows and numbers above the columns
};

BoardPicture PictureOfGivens(const Puzzle& puzzle);
// The puzzle must have a solution.
BoardPicture PictureOfSolution(const Puzzle& puzzle);
// The candidates of each cell without a digit: those that no peer's digit excludes.
MaskBoard PencilMarksOf(const Layout& layout, const Grid& digits);

}  // namespace tessel::paper
