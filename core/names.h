// What the lines and cells of the board are called: rows A to H and J, columns 1 to 9.
#pragma once

#include <array>
#include <string>

#include "core/cell.h"

namespace tessel {

// Deliberate: the letter I is skipped, the ninth row is J.
inline constexpr std::array<char, kSide> kRowLetters{'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H', 'J'};

// `row` and `column` are 0..8.
inline std::string RowName(int row) {
  return {kRowLetters[row]};
}
inline std::string ColumnName(int column) {
  return {static_cast<char>('1' + column)};
}
// "B4": the row letter and the column digit.
inline std::string CellName(int cell) {
  return RowName(RowOf(cell)) + ColumnName(ColumnOf(cell));
}

}  // namespace tessel
