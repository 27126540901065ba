#include "formats/drawing.h"

#include "core/cage_edges.h"

namespace tessel::formats {

namespace {

// Whether a wall stands above (row 0..9) or left of (column 0..9) the cell's place, which may lie
// just outside the board.
bool LevelWall(const Layout& layout, int row, int column) {
  if (column < 0 || column == kSide) return false;
  return row == kSide || IsCageWall(layout, CellAt(row, column), CellSide::kTop);
}
bool UprightWall(const Layout& layout, int row, int column) {
  if (row < 0 || row == kSide) return false;
  return column == kSide || IsCageWall(layout, CellAt(row, column), CellSide::kLeft);
}

char CornerOf(const Layout& layout, int row, int column) {
  const bool above = UprightWall(layout, row - 1, column);
  const bool below = UprightWall(layout, row, column);
  const bool level = LevelWall(layout, row, column - 1) || LevelWall(layout, row, column);
  if (above && below) return level ? ':' : '|';
  if (above) return '\'';
  if (below) return '.';
  return level ? '-' : ' ';
}

std::string WallLine(const Layout& layout, int row) {
  std::string line;
  for (int column = 0; column < kSide; ++column) {
    line += CornerOf(layout, row, column);
    line += std::string(3, LevelWall(layout, row, column) ? '-' : ' ');
  }
  return line + CornerOf(layout, row, kSide) + "\n";
}

std::string CellLine(const Puzzle& puzzle, int row) {
  std::string line;
  for (int column = 0; column <= kSide; ++column) {
    line += UprightWall(puzzle.layout, row, column) ? '|' : ' ';
    if (column == kSide) break;
    const int digit = puzzle.givens[CellAt(row, column)];
    line += {' ', digit == 0 ? '.' : static_cast<char>('0' + digit), ' '};
  }
  return line + "\n";
}

}  // namespace

Writing WriteDrawing(const DescribedPuzzle& described) {
  std::string drawing;
  for (int row = 0; row < kSide; ++row) {
    drawing += WallLine(described.puzzle.layout, row) + CellLine(described.puzzle, row);
  }
  return drawing + WallLine(described.puzzle.layout, kSide) + "\n";
}

}  // namespace tessel::formats
