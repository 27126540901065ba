// Plain boards for the oracles: they share no type and no table with the program.
#pragma once

#include <array>
#include <cstdint>

namespace tessel::oracle {

using Grid = std::array<std::int16_t, 81>;  // one number for each cell

struct Layout {
  Grid cageOfCell{};                                       // 1..9
  std::array<std::array<std::int16_t, 9>, 9> cageCells{};  // [cage - 1][k], ascending
};

// The layout of a complete cage map: every cage 1..9 nine times.
constexpr Layout LayoutOf(const Grid& cageOfCell) {
  Layout layout{cageOfCell, {}};
  std::array<int, 9> count{};
  for (int cell = 0; cell < 81; ++cell) {
    const int cage = cageOfCell[cell] - 1;
    layout.cageCells[cage][count[cage]++] = static_cast<std::int16_t>(cell);
  }
  return layout;
}

// The nine 3x3 boxes.
constexpr Layout RegularLayout() {
  Grid cages{};
  for (int cell = 0; cell < 81; ++cell) {
    cages[cell] = static_cast<std::int16_t>(1 + cell / 27 * 3 + cell % 9 / 3);
  }
  return LayoutOf(cages);
}

}  // namespace tessel::oracle
