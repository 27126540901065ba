#include "search/naked_singles.h"

#include <array>

namespace tessel {

namespace {

// For each digit, the unfilled cells of which it is a candidate. All singles of the board are
// placed in one round of a few set operations for each digit.
class DigitSets {
 public:
  explicit DigitSets(const PerCell<CellSet>& peersAndSelf) : peersAndSelf_(peersAndSelf) {
    sets_.fill(kAllCells);
  }

  // False when the digit is no candidate of the cell. The cell stays in the sets of other digits.
  bool Place(int cell, int digit) {
    CellSet& set = sets_[digit - 1];
    const bool isCandidate = set.Contains(cell);
    set = set - peersAndSelf_[cell];
    return isCandidate;
  }
  // False when the digit is a candidate of two of the cells that share a house.
  bool PlaceAll(CellSet cells, int digit) {
    bool all = true;
    ForEach(cells & sets_[digit - 1], [&](int cell) { all &= Place(cell, digit); });
    return all;
  }
  void RemoveCells(CellSet cells) {
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
  const PerCell<CellSet>& peersAndSelf_;
  std::array<CellSet, kSide> sets_{};
};

}  // namespace

SinglesResult PropagateNakedSingles(const CellDigits& givens,
                                    const PerCell<CellSet>& peersAndSelf) {
  DigitSets candidates(peersAndSelf);
  CellSet unfilled;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int given = givens[cell];
    if (given <= 0) {
      unfilled = unfilled | CellSet::Of(cell);
    } else if (given > kSide || !candidates.Place(cell, given)) {
      return SinglesResult::kContradiction;
    }
  }
  candidates.RemoveCells(kAllCells - unfilled);
  while (true) {
    const auto [some, several] = candidates.Count();
    if (some != unfilled) return SinglesResult::kContradiction;
    const CellSet singles = some - several;
    if (singles.Empty()) return unfilled.Empty() ? SinglesResult::kSolved : SinglesResult::kOpen;
    for (int digit = 1; digit <= kSide; ++digit) {
      if (!candidates.PlaceAll(singles, digit)) return SinglesResult::kContradiction;
    }
    unfilled = unfilled - singles;
  }
}

}  // namespace tessel
