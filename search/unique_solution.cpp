// Whether givens have exactly one completion.
#include "search/exact_cover_search.h"

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

}  // namespace

bool ExactCoverSearch::UniqueSolution() {
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
  int pos = -1;
  bool sound = true;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int given = state_.WorkGrid[cell];
    level.Digit[cell] = static_cast<std::int16_t>(given > 0 ? given : 0);
    if (given <= 0) level.Order[++pos] = static_cast<std::int16_t>(cell);
  }
  Pos() = static_cast<std::int16_t>(pos);
  levelStart_[0] = Pos();
  for (int cell = 0; cell < kCellCount && sound; ++cell) {
    const int given = state_.WorkGrid[cell];
    if (given <= 0) continue;
    sound = given <= kSide && Holds(level.Candidates[cell], given);
    if (!sound) break;
    RemoveFromHouses(state_, cell, given, level.Candidates);
    level.Candidates[cell] = 0;
  }
  return sound && !OutlookOf(level).deadEnd;
}

// False when a single leaves another cell without a candidate.
bool ExactCoverSearch::PlaceSinglesOfGivens() {
  Outlook outlook = OutlookOf(Levels[0]);
  while (outlook.single && !outlook.deadEnd) {
    outlook = *PlaceSingle(Pos());
    --Pos();
  }
  levelStart_[0] = Pos();
  return !outlook.deadEnd;
}

}  // namespace tessel
