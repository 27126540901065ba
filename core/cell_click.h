// What a click on a cell says: which mouse button, and the digit whose mark lies under it.
#pragma once

#include <cassert>
#include <cmath>
#include <cstdint>
#include <optional>

#include "core/cell.h"

namespace tessel {

enum class MouseButton : std::int16_t { kLeft = 1, kRight = 2, kMiddle = 4 };

// A cell is 375 x 375 units; the marks of its nine digits lie in it as on a telephone's keypad.
inline constexpr int kCellUnits = 375;
inline constexpr int kMarksPerLine = 3;
inline constexpr int kMarkUnits = kCellUnits / kMarksPerLine;

// The line of marks (0..2, from the top) and the column (0..2, from the left) of a digit's mark.
constexpr int MarkLineOf(int digit) {
  return (digit - 1) / kMarksPerLine;
}
constexpr int MarkColumnOf(int digit) {
  return (digit - 1) % kMarksPerLine;
}

// A place in a cell, in units to the right of and below its top left corner.
struct CellPosition {
  double x = 0.0;
  double y = 0.0;

  friend bool operator==(CellPosition, CellPosition) = default;
};

// The middle of a digit's mark; `digit` 1..9.
constexpr CellPosition MarkCentre(int digit) {
  assert(digit >= 1 && digit <= kSide);
  return {kMarkUnits * (MarkColumnOf(digit) + 0.5), kMarkUnits * (MarkLineOf(digit) + 0.5)};
}

// The digit whose mark lies at the position. Deliberate: only the resulting number is checked, so a
// position to the left or right of the cell can name a digit of a neighbouring line of marks.
inline std::optional<int> DigitAt(CellPosition position) {
  const double line = std::floor(position.y / kMarkUnits);
  const double column = std::floor(position.x / kMarkUnits);
  const double digit = kMarksPerLine * line + column + 1;
  if (!(digit >= 1 && digit <= kSide)) return std::nullopt;  // NaN is no digit either
  return static_cast<int>(digit);
}

}  // namespace tessel
