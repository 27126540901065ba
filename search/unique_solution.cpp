// Whether givens have exactly one completion.
#include <algorithm>

#include "search/exact_cover_search.h"
#include "search/naked_singles.h"

namespace tessel {

namespace {

// Lets the search run to its second solution.
class SolutionCount final : public SearchDriver {
 public:
  explicit SolutionCount(Progress& progress) : progress_(progress) {}

  bool BeforeIteration() override {
    progress_.Step();
    return true;
  }
  bool ContinueAfterSolution() override { return ++solutions_ < 2; }
  int Solutions() const { return solutions_; }

 private:
  Progress& progress_;
  int solutions_ = 0;
};

}  // namespace

// Fast path: most boards that concealing asks about are solved or refuted by naked singles, whose
// result does not depend on their order. Otherwise the search starts over with its ordered singles,
// so that it takes the iterations by which it is defined.
bool ExactCoverSearch::UniqueSolution(const CellDigits& givens, Progress& progress) {
  Reset();
  switch (PropagateNakedSingles(givens, tables_.PeersAndSelf())) {
    case SinglesResult::kSolved:
      return true;
    case SinglesResult::kContradiction:
      return false;
    case SinglesResult::kOpen:
      break;
  }
  StartFromGivens(givens);
  SolutionCount driver(progress);
  return Run(driver) == SearchResult::kExhausted && driver.Solutions() == 1;
}

// Positions 0..Pos list the empty cells in increasing order, before the singles among them are
// placed. The givens must not clash, nor may the singles lead to a contradiction.
void ExactCoverSearch::StartFromGivens(const CellDigits& givens) {
  SearchLevel& level = Levels[0];
  int pos = -1;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int given = std::max<int>(0, givens[cell]);
    level.Digit[cell] = static_cast<std::int16_t>(given);
    if (given == 0) {
      level.Order[++pos] = static_cast<std::int16_t>(cell);
    } else {
      level.Candidates[cell] = 0;
      ForEach(tables_.PeersAndSelf()[cell], [&](int other) {
        level.Candidates[other] = Without(level.Candidates[other], BitOf(given));
      });
    }
  }
  StartAt(pos);
  const BoardStatus status = kernels::StatusOf(level);
  if (status.Single()) {
    kernels::PropagateSingles(level, tables_, status, pos, kCellCount, scratch_);
    CommitSingles();
  }
  levelStart_[0] = Pos();
}

bool HasUniqueSolution(const Layout& layout, const Grid& givens) {
  return ExactCoverSearch(layout).UniqueSolution(DigitsOf(givens));
}

}  // namespace tessel
