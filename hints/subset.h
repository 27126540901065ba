// What naked and hidden subsets share: a house as both see it, and the words.
#pragma once

#include <string>

#include "hints/positions.h"
#include "hints/technique.h"

namespace tessel {

enum class Subset : bool { kHidden, kNaked };

// The technique for subsets of `size` cells or digits, naked ones of 2 to 5 and hidden ones of 2
// and 3; nullptr for other sizes.
const Technique* SubsetTechnique(Subset family, int size);

// What the board and the marks show in a house, by position.
struct HouseContents {
  std::array<Mask, kSide> candidates{};
  Positions empty = 0;
  Mask placed = 0;  // the digits on the board
};
HouseContents ContentsOf(const MarkedBoard& board, const House& house);

// The hint of the subset of `digits` at these positions of the house. `inRow` is its technique's
// code for rows, `lostAt(k)` what goes from position k.
template <typename LostAt>
Hint SubsetHint(HintCode inRow, const House& house, Positions positions, Mask digits,
                const LostAt& lostAt) {
  Hint hint{.code = CodeFor(inRow, house.kind),
            .houses = {house},
            .cells = CellsAt(house, positions),
            .digits = digits};
  for (int k = 0; k < kSide; ++k) {
    const Mask lost = lostAt(k);
    if (lost != 0) hint.eliminations.push_back({house.cells[k], lost});
  }
  return hint;
}

// "A naked pair is present in row B and leads to elimination" and the tail. The name is `family`,
// such as "naked", with the word for the number of the hint's cells.
std::string SubsetSentence(const char* family, const Hint& hint, const std::string& tail);

}  // namespace tessel
