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
  int Solutions() const { return solutions_; }

 private:
  View& view_;
  int solutions_ = 0;
};

}  // namespace

// Most questions are answered by naked singles alone, which need no order then. Where they leave
// cells open, the search begins anew, with the singles in its own order.
bool ExactCoverSearch::UniqueSolution() {
  Reset();
  switch (FollowNakedSingles(state_.WorkGrid, lanes_.Houses())) {
    case SinglesEnd::kSolved:
      return true;
    case SinglesEnd::kContradiction:
      return false;
    case SinglesEnd::kOpen:
      break;
  }
  StartFromGivens();
  SolutionCount driver(view_);
  return Run(driver) == SearchEnd::kExhausted && driver.Solutions() == 1;
}

// Positions 0..Pos list the empty cells in increasing order, before the singles among them are
// placed. The givens must not clash, nor the singles come to a dead end.
void ExactCoverSearch::StartFromGivens() {
  SearchLevel& level = Levels[0];
  int pos = -1;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int given = std::max<int>(0, state_.WorkGrid[cell]);
    level.Digit[cell] = static_cast<std::int16_t>(given);
    if (given == 0) {
      level.Order[++pos] = static_cast<std::int16_t>(cell);
    } else {
      level.Candidates[cell] = 0;
      ForEach(lanes_.Houses()[cell], [&](int other) {
        level.Candidates[other] = Without(level.Candidates[other], BitOf(given));
      });
    }
  }
  StartAt(pos);
  const Outlook outlook = OutlookOf(level);
  if (outlook.Single()) {
    PlaceSingles(level, lanes_, outlook, pos, kCellCount, run_);
    TakeSingles();
  }
  levelStart_[0] = Pos();
}

}  // namespace tessel
