#include "search/conceal.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace tessel {

namespace {

struct Limits {
  int countPerStep;  // what a hidden or kept cell counts; a pair counts 2, the centre cell too
  int maxConcealed;  // hiding ends here
  int maxRefusals;   // after this many in a row the cells are taken in ascending order
  int lastSequentialCell;

  bool InPairs() const { return countPerStep == 2; }
};
// The limits differ on purpose: at most 57 single cells or 29 pairs are hidden, and the ascending
// scan follows 61 refusals in a row of single cells but 41 of pairs.
constexpr Limits kSingles{1, 57, 61, kCellCount - 1};
constexpr Limits kPairs{2, 58, 41, kCentreCell};

// The bookkeeping of one run.
class Concealment {
 public:
  Concealment(const Grid& solution, RandomSource& random, const Limits& limits)
      : random_(random), limits_(limits), FullGrid(DigitsOf(solution)), givens_(FullGrid) {
    Tryable.fill(true);
  }

  bool Complete() const {
    return ConcealedCount == limits_.maxConcealed || ConcealedCount + KeptCount >= kCellCount;
  }

  // The next cell to hide; none when the ascending scan is through.
  std::optional<int> Choose() {
    if (SequentialMode) return ChooseNext();
    int cell = DrawIndex(random_, kCellCount);
    while (!MayHide(cell)) cell = DrawIndex(random_, kCellCount);
    return cell;
  }

  void Hide(int cell) {
    ConcealedCount += limits_.countPerStep;
    ConcealedList[ConcealedCount] = static_cast<std::int16_t>(cell);
    Clear(cell);
  }

  void Refuse(int cell) {
    Tryable[cell] = false;
    if (limits_.InPairs()) Tryable[HalfTurnOf(cell)] = false;
    KeptCount += limits_.countPerStep;
    ConcealedCount -= limits_.countPerStep;
    if (++FailStreak >= limits_.maxRefusals && !SequentialMode) {
      SequentialMode = true;
      ScanPos = -1;
    }
  }

  void Accept() {
    if (!SequentialMode) FailStreak = 0;
  }

  const CellDigits& Givens() const { return givens_; }

  void RebuildGivens() {
    givens_ = FullGrid;
    for (int n = limits_.countPerStep; n <= ConcealedCount; n += limits_.countPerStep)
      Clear(ConcealedList[n]);
  }

 private:
  std::optional<int> ChooseNext() {
    do {
      if (++ScanPos > limits_.lastSequentialCell) return std::nullopt;
    } while (!MayHide(ScanPos));
    return ScanPos;
  }

  bool MayHide(int cell) const { return givens_[cell] > 0 && Tryable[cell]; }

  void Clear(int cell) {
    givens_[cell] = 0;
    if (limits_.InPairs()) givens_[HalfTurnOf(cell)] = 0;
  }

  RandomSource& random_;
  const Limits& limits_;
  const CellDigits FullGrid;
  CellDigits givens_;
  PerCell<bool> Tryable{};
  // Positions 1..58; pairs take every second position and stand there with the cell drawn.
  std::array<std::int16_t, 59> ConcealedList{};
  int ConcealedCount = 0;
  int KeptCount = 0;
  int FailStreak = 0;  // refusals since the last acceptance
  bool SequentialMode = false;
  int ScanPos = -1;
};

}  // namespace

std::optional<Grid> Conceal(ExactCoverSearch& search, const Grid& solution, ConcealMode mode,
                            RandomSource& random, Progress& progress) {
  assert(std::ranges::all_of(solution, [](int digit) { return digit >= 1 && digit <= kSide; }));
  Concealment concealment(solution, random, mode == ConcealMode::kPairs ? kPairs : kSingles);
  while (!concealment.Complete() && !progress.StopRequested()) {
    const std::optional<int> cell = concealment.Choose();
    if (!cell) break;
    concealment.Hide(*cell);
    progress.HidingTried(concealment.Givens());
    if (search.UniqueSolution(concealment.Givens(), progress)) {
      concealment.Accept();
    } else {
      concealment.Refuse(*cell);
    }
    concealment.RebuildGivens();
    progress.HidingDecided(concealment.Givens());
  }
  if (progress.StopRequested()) return std::nullopt;
  return GridOf(concealment.Givens());
}

std::optional<Grid> Conceal(const Layout& layout, const Grid& solution, ConcealMode mode,
                            RandomSource& random, Progress& progress) {
  ExactCoverSearch search(layout);
  return Conceal(search, solution, mode, random, progress);
}

}  // namespace tessel
