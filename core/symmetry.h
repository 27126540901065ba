// The eight symmetries of the square, and what they do to a puzzle.
#pragma once

#include <array>
#include <compare>
#include <string_view>

#include "core/puzzle.h"

namespace tessel {

enum class Symmetry : std::uint8_t {
  kNone,
  kQuarterTurn,  // clockwise
  kHalfTurn,
  kThreeQuarterTurn,
  kLeftRight,     // a mirror that stands upright
  kUpDown,        // a mirror that lies level
  kDiagonal,      // from the upper left corner
  kAntidiagonal,  // from the upper right corner
};
inline constexpr std::array kSymmetries{
    Symmetry::kNone,      Symmetry::kQuarterTurn, Symmetry::kHalfTurn, Symmetry::kThreeQuarterTurn,
    Symmetry::kLeftRight, Symmetry::kUpDown,      Symmetry::kDiagonal, Symmetry::kAntidiagonal};

// The cell whose content the symmetry brings to the place of `cell`; both 0..80.
constexpr int SourceOf(Symmetry symmetry, int cell) {
  constexpr int last = kSide - 1;
  const int row = RowOf(cell);
  const int column = ColumnOf(cell);
  switch (symmetry) {
    case Symmetry::kNone:
      return cell;
    case Symmetry::kQuarterTurn:
      return CellAt(last - column, row);
    case Symmetry::kHalfTurn:
      return HalfTurnOf(cell);
    case Symmetry::kThreeQuarterTurn:
      return CellAt(column, last - row);
    case Symmetry::kLeftRight:
      return CellAt(row, last - column);
    case Symmetry::kUpDown:
      return CellAt(last - row, column);
    case Symmetry::kDiagonal:
      return CellAt(column, row);
    case Symmetry::kAntidiagonal:
      return CellAt(last - column, last - row);
  }
  return cell;
}

// What stays of a puzzle when it is turned, mirrored, its cages renumbered and its digits renamed:
// of the eight turned and mirrored ones, with cages and digits numbered as they are met row by row,
// the least, cages first. Two puzzles have the same form only if they are the same puzzle so.
struct CanonicalForm {
  CageNumbers cages{};
  Grid givens{};

  friend auto operator<=>(const CanonicalForm&, const CanonicalForm&) = default;
};
// `givens`: digits 1..9, and 0 for empty cells.
CanonicalForm CanonicalFormOf(const Layout& layout, const Grid& givens);

// The symmetries that the picture of the puzzle has: walls, and places of givens whatever their
// digits. "none", "half-turn", "quarter-turn", "left-right", "up-down", "diagonal", "antidiagonal",
// "left-right and up-down", "both diagonals" or "full".
std::string_view SymmetryNameOf(const Layout& layout, const Grid& givens);

}  // namespace tessel
