#include "grade/candidate_grid.h"

#include <algorithm>

namespace tessel::grade {

namespace {

using DigitsInHouses = std::array<Mask, 3 * kSide>;

DigitsInHouses DigitsIn(const Layout& layout, const Grid& givens) {
  DigitsInHouses digits{};
  for (std::size_t house = 0; house < digits.size(); ++house) {
    int held = 0;
    for (const int cell : layout.AllHouses()[house].cells) held |= 1 << givens[cell];
    digits[house] = static_cast<Mask>(held >> 1);  // without the bit of the empty cells
  }
  return digits;
}

}  // namespace

bool CandidateGrid::Solved() const {
  return std::ranges::find(digits, 0) == digits.end();
}

CandidateGrid StartOf(const Layout& layout, const Grid& givens) {
  const DigitsInHouses held = DigitsIn(layout, givens);
  CandidateGrid start{givens, {}};
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (givens[cell] != 0) continue;
    const int seen = held[RowOf(cell)] | held[kSide + ColumnOf(cell)] |
                     held[2 * kSide + layout.CageOf(cell) - 1];
    start.candidates[cell] = Without(kAllCandidates, static_cast<Mask>(seen));
  }
  return start;
}

CellSet CandidatesOf(const CandidateGrid& position, int digit) {
  CellSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (Holds(position.candidates[cell], digit)) cells = cells | CellSet::Of(cell);
  }
  return cells;
}

CellSet PlacesOf(const CandidateGrid& position, int digit) {
  CellSet cells = CandidatesOf(position, digit);
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (position.digits[cell] == digit) cells = cells | CellSet::Of(cell);
  }
  return cells;
}

}  // namespace tessel::grade
