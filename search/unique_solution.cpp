// Whether givens have exactly one completion.
#include <algorithm>

#include "search/exact_cover_search.h"
#include "search/naked_singles.h"

namespace tessel {

namespace {

// Lets the search run to its second solution.
class SolutionCount final : public SearchDriver {
 public:
  explicit SolutionCount(View& view) : view_(view) {}

  bool Proceed() override {
    view_.PumpEvents();
    return true;
  }
  bool ContinueAfterSolution() override { return ++solutions_ < 2; }

 private:
  View& view_;
  int solutions_ = 0;

 public:
  int Solutions() const { return solutions_; }
};

// The digits that givens use up in each house.
class UsedDigits {
 public:
  explicit UsedDigits(const GameState& state) : state_(state) {}

  Mask FreeAt(int cell) const {
    const int used =
        rows_[RowOf(cell)] | columns_[ColumnOf(cell)] | cages_[state_.CageOfCell[cell]];
    return Without(kAllCandidates, static_cast<Mask>(used));
  }
  void Add(int cell, Mask bit) {
    AddTo(rows_[RowOf(cell)], bit);
    AddTo(columns_[ColumnOf(cell)], bit);
    if (state_.CageOfCell[cell] != 0) AddTo(cages_[state_.CageOfCell[cell]], bit);
  }

 private:
  static void AddTo(Mask& house, Mask bit) { house = static_cast<Mask>(house | bit); }

  const GameState& state_;
  std::array<Mask, kSide> rows_{};
  std::array<Mask, kSide> columns_{};
  std::array<Mask, kSide + 1> cages_{};  // index 0, for cells in no cage, stays empty
};

}  // namespace

bool ExactCoverSearch::UniqueSolution() {
  lanes_.Follow(state_);
  switch (FollowNakedSingles(state_.WorkGrid, lanes_.Houses())) {
    case SinglesEnd::kSolved:
      return true;
    case SinglesEnd::kContradiction:
      return false;
    case SinglesEnd::kOpen:
      break;
  }
  if (!StartFromGivens() || !PlaceSinglesOfGivens()) return false;
  if (Pos() == -1) return true;
  SolutionCount driver(view_);
  return Run(driver) == SearchEnd::kExhausted && driver.Solutions() == 1;
}

// Positions 0..Pos list the empty cells in increasing order. False when givens are no digits, clash
// with each other or leave an empty cell without a candidate.
bool ExactCoverSearch::StartFromGivens() {
  Reset();
  SearchLevel& level = Levels[0];
  UsedDigits used(state_);
  int pos = -1;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int given = std::max<int>(0, state_.WorkGrid[cell]);
    level.Digit[cell] = static_cast<std::int16_t>(given);
    if (given == 0) {
      level.Order[++pos] = static_cast<std::int16_t>(cell);
    } else if (given <= kSide && Holds(used.FreeAt(cell), given)) {
      used.Add(cell, BitOf(given));
    } else {
      return false;
    }
  }
  for (int cell = 0; cell < kCellCount; ++cell) {
    level.Candidates[cell] = level.Digit[cell] == 0 ? used.FreeAt(cell) : Mask{0};
  }
  StartAt(pos);
  return !OutlookOf(level).DeadEnd();
}

// False when a single leaves another cell without a candidate.
bool ExactCoverSearch::PlaceSinglesOfGivens() {
  Outlook outlook = OutlookOf(Levels[0]);
  if (outlook.Single()) {
    outlook = PlaceSingles(Levels[0], lanes_, outlook, Pos(), kCellCount, run_);
    WriteSingles(run_, Pos(), Levels[0]);
    Pos() = static_cast<std::int16_t>(Pos() - run_.count);
  }
  levelStart_[0] = Pos();
  return !outlook.DeadEnd();
}

}  // namespace tessel
