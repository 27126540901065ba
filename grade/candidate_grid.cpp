#include "grade/candidate_grid.h"

#include <algorithm>

namespace tessel::grade {

namespace {

Mask CandidatesAt(const Layout& layout, const Grid& givens, int cell) {
  if (givens[cell] != 0) return 0;
  Mask candidates = kAllCandidates;
  ForEach(layout.PeersOf(cell), [&](int peer) {
    if (givens[peer] != 0) candidates = Without(candidates, BitOf(givens[peer]));
  });
  return candidates;
}

}  // namespace

bool CandidateGrid::Solved() const {
  return std::ranges::find(digits, 0) == digits.end();
}

CandidateGrid StartOf(const Layout& layout, const Grid& givens) {
  CandidateGrid start{givens, {}};
  for (int cell = 0; cell < kCellCount; ++cell) {
    start.candidates[cell] = CandidatesAt(layout, givens, cell);
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
