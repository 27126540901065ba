#include "search/conceal.h"

#include <optional>

#include "core/stage_time.h"

namespace tessel {

namespace {

// How cells are hidden: one at a time, or together with the cell opposite.
struct Mode {
  int weight;         // what a hidden or kept cell counts; a pair counts 2, the centre too
  int mostConcealed;  // hiding ends here
  int mostRefusals;   // so many refusals in a row and the cells are taken in ascending order
  int lastSequentialCell;
};
// The limits differ on purpose: at most 57 single cells or 29 pairs are hidden, and the ascending
// scan follows 61 refusals in a row of single cells but 41 of pairs.
constexpr Mode kSingleMode{1, 57, 61, kCellCount - 1};
constexpr Mode kPairMode{2, 58, 41, kCentreCell};

// The bookkeeping of one run.
class Concealment {
 public:
  Concealment(GameState& state, RandomSource& random, const Mode& mode)
      : state_(state), random_(random), mode_(mode), FullGrid(state.WorkGrid) {
    Tryable.fill(true);
  }

  bool Complete() const {
    return ConcealedCount == mode_.mostConcealed || ConcealedCount + KeptCount >= kCellCount;
  }

  // The next cell to hide; none when the ascending scan is through.
  std::optional<int> Choose() {
    if (SequentialMode) return ChooseNext();
    int cell = DrawIndex(random_, kCellCount);
    while (!MayHide(cell)) cell = DrawIndex(random_, kCellCount);
    return cell;
  }

  void Hide(int cell) {
    ConcealedCount += mode_.weight;
    ConcealedList[ConcealedCount] = static_cast<std::int16_t>(cell);
    Clear(cell);
  }

  void Refuse(int cell) {
    Tryable[cell] = false;
    if (mode_.weight == 2) Tryable[HalfTurnOf(cell)] = false;
    KeptCount += mode_.weight;
    ConcealedCount -= mode_.weight;
    if (++FailStreak >= mode_.mostRefusals && !SequentialMode) {
      SequentialMode = true;
      ScanPos = -1;
    }
  }

  void Accept() {
    if (!SequentialMode) FailStreak = 0;
  }

  void RebuildWorkGrid() {
    state_.WorkGrid = FullGrid;
    for (int n = mode_.weight; n <= ConcealedCount; n += mode_.weight) Clear(ConcealedList[n]);
  }

  void RestoreWorkGrid() { state_.WorkGrid = FullGrid; }

 private:
  std::optional<int> ChooseNext() {
    do {
      if (++ScanPos > mode_.lastSequentialCell) return std::nullopt;
    } while (!MayHide(ScanPos));
    return ScanPos;
  }

  bool MayHide(int cell) const { return state_.WorkGrid[cell] > 0 && Tryable[cell]; }

  void Clear(int cell) {
    state_.WorkGrid[cell] = 0;
    if (mode_.weight == 2) state_.WorkGrid[HalfTurnOf(cell)] = 0;
  }

  GameState& state_;
  RandomSource& random_;
  const Mode& mode_;
  CellDigits FullGrid;
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

bool Concealer::ConcealCells2ValidTessel() {
  random_.Seed(clock_.Seed());
  StartStopwatch(state_, clock_);
  Concealment concealment(state_, random_,
                          form_.Checked(CheckBox::ConcealRotational) ? kPairMode : kSingleMode);
  while (!concealment.Complete() && !state_.StopRequested) {
    const std::optional<int> cell = concealment.Choose();
    if (!cell) break;
    concealment.Hide(*cell);
    if (search_.UniqueSolution()) {
      concealment.Accept();
    } else {
      concealment.Refuse(*cell);
    }
    concealment.RebuildWorkGrid();
    ShowDigits();
  }
  const bool completed = !state_.StopRequested;
  if (completed) {
    Complete();
  } else {
    ClearDigits();
  }
  concealment.RestoreWorkGrid();
  state_.StopRequested = false;
  return completed;
}

void Concealer::Complete() {
  ShowStageTime(state_, form_, "Concealed");
  state_.Puzzle = state_.WorkGrid;
  for (int cell = 0; cell < kCellCount; ++cell) {
    form_.SetMarksColour(cell, CageColourOf(state_, cell));
  }
  view_.Beep();
}

void Concealer::ShowDigits() {
  for (int cell = 0; cell < kCellCount; ++cell) form_.SetCellText(cell, state_.WorkGrid[cell]);
}

void Concealer::ClearDigits() {
  for (int cell = 0; cell < kCellCount; ++cell) form_.SetCellText(cell, 0);
}

}  // namespace tessel
