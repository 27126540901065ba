#include "search/fill.h"

#include <limits>

#include "search/random_restarts.h"

namespace tessel {

namespace {

// Tells of every placement that is watched, until the first solution.
class WatchedSearch final : public SearchDriver {
 public:
  explicit WatchedSearch(Progress& progress) : progress_(progress) {}

  bool BeforeIteration() override {
    progress_.Step();
    ObservePlacements(progress_.WatchesPlacements());
    return !progress_.StopRequested();
  }
  bool ContinueAfterSolution() override { return false; }
  void TrialPlaced(int pos, int cell) override {
    progress_.DigitPlaced({Placement::Kind::kTrial, cell, pos});
  }
  void SinglePlaced(int pos, int cell) override {
    progress_.DigitPlaced({Placement::Kind::kSingle, cell, pos});
  }

 private:
  Progress& progress_;
};

}  // namespace

std::optional<Grid> Fill(ExactCoverSearch& search, RandomSource& random, Progress& progress) {
  RandomRestarts restarts(search, random, progress);
  const auto result = restarts.Run(std::numeric_limits<std::int64_t>::max());
  if (result != RandomRestarts::Result::kFilled) return std::nullopt;
  if (progress.WatchesPlacements()) {
    search.StartEmpty(restarts.Order());
    WatchedSearch driver(progress);
    if (search.Run(driver) != SearchResult::kSolved) return std::nullopt;
  }
  return GridOf(search.Top().Digit);
}

std::optional<Grid> Fill(const Layout& layout, RandomSource& random, Progress& progress) {
  ExactCoverSearch search(layout);
  return Fill(search, random, progress);
}

}  // namespace tessel
