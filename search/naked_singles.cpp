#include "search/naked_singles.h"

#include <array>

namespace tessel {

namespace {

// For each digit, the unfilled cells of which it is a candidate. A round of singles takes few
// steps, because a set holds the whole board.
class DigitSets {
 public:
  explicit DigitSets(const PerCell<CellSet>& houses) : houses_(houses) { sets_.fill(kAllCells); }

  // False when the digit is no candidate of the cell. The cell stays in the sets of other digits.
  bool Place(int cell, int digit) {
    CellSet& set = sets_[digit - 1];
    const bool isCandidate = set.Contains(cell);
    set = set - houses_[cell];
    return isCandidate;
  }
  // False when the digit is a candidate of two of the cells that share a house.
  bool PlaceAll(CellSet cells, int digit) {
    bool all = true;
    ForEach(cells & sets_[digit - 1], [&](int cell) { all &= Place(cell, digit); });
    return all;
  }
  void Leave(CellSet cells) {
    for (CellSet& set : sets_) set = set - cells;
  }

  struct Counts {
    CellSet some;     // the cells with a candidate at least
    CellSet several;  // with two at least
  };
  Counts Count() const {
    Counts counts;
    for (const CellSet& set : sets_) {
      counts.several = counts.several | (counts.some & set);
      counts.some = counts.some | set;
    }
    return counts;
  }

 private:
  const PerCell<CellSet>& houses_;
  std::array<CellSet, kSide> sets_{};
};

}  // namespace

SinglesEnd FollowNakedSingles(const CellDigits& givens, const PerCell<CellSet>& houses) {
  DigitSets candidates(houses);
  CellSet unfilled;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int given = givens[cell];
    if (given <= 0) {
      unfilled = unfilled | CellSet::Of(cell);
    } else if (given > kSide || !candidates.Place(cell, given)) {
      return SinglesEnd::kContradiction;
    }
  }
  candidates.Leave(kAllCells - unfilled);
  while (true) {
    const auto [some, several] = candidates.Count();
    if (some != unfilled) return SinglesEnd::kContradiction;
    const CellSet singles = some - several;
    if (singles.Empty()) return unfilled.Empty() ? SinglesEnd::kSolved : SinglesEnd::kOpen;
    for (int digit = 1; digit <= kSide; ++digit) {
      if (!candidates.PlaceAll(singles, digit)) return SinglesEnd::kContradiction;
    }
    unfilled = unfilled - singles;
  }
}

}  // namespace tessel
