#include "paper/board_picture.h"

namespace tessel::paper {

namespace {

CellSet FilledCells(const Grid& digits) {
  CellSet filled;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (digits[cell] != 0) filled = filled | CellSet::Of(cell);
  }
  return filled;
}

}  // namespace

BoardPicture PictureOfGivens(const Puzzle& puzzle) {
  return {.layout = puzzle.layout, .digits = puzzle.givens, .givens = FilledCells(puzzle.givens)};
}

BoardPicture PictureOfSolution(const Puzzle& puzzle) {
  return {.layout = puzzle.layout,
          .digits = puzzle.solution.value(),
          .givens = FilledCells(puzzle.givens)};
}

MaskBoard PencilMarksOf(const Layout& layout, const Grid& digits) {
  MaskBoard marks{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (digits[cell] != 0) continue;
    marks[cell] = kAllCandidates;
    ForEach(layout.PeersOf(cell), [&](int peer) {
      if (digits[peer] != 0) marks[cell] = Without(marks[cell], BitOf(digits[peer]));
    });
  }
  return marks;
}

}  // namespace tessel::paper
