#include "search/exact_cover_search.h"

#include <cassert>

namespace tessel {

namespace {

constexpr int kLastPosition = kCellCount - 1;

[[maybe_unused]] bool IsPermutation(const CellOrder& order) {
  CellSet seen;
  for (const int cell : order) {
    if (cell < 0 || cell >= kCellCount || seen.Contains(cell)) return false;
    seen = seen | CellSet::Of(cell);
  }
  return true;
}

}  // namespace

void SearchDriver::TrialPlaced(int /*pos*/, int /*cell*/) {}
void SearchDriver::SinglePlaced(int /*pos*/, int /*cell*/) {}

ExactCoverSearch::ExactCoverSearch(const Layout& layout) : cages_(layout.Cages()), tables_(layout) {
  Reset();
}

void ExactCoverSearch::Use(const Layout& layout) {
  if (layout.Cages() != cages_) {
    cages_ = layout.Cages();
    tables_ = PeerTables(layout);
  }
  Reset();
}

void ExactCoverSearch::Reset() {
  Depth = 0;
  Levels.resize(1);
  levelPos_.resize(1);
  levelStart_.resize(1);
  Levels[0].UndoCount = 0;
  Levels[0].LastChoice.fill(0);
  Levels[0].Candidates.fill(kAllCandidates);
}

void ExactCoverSearch::StartEmpty(const CellOrder& order) {
  assert(IsPermutation(order));
  Reset();
  Levels[0].Digit.fill(0);
  Levels[0].Order = order;
  StartAt(kLastPosition);
}

// Level 0 begins with the cells at positions 0..pos unfilled.
void ExactCoverSearch::StartAt(int pos) {
  WritePositionKeys(pos);
  levelPos_[0] = static_cast<std::int16_t>(pos);
  levelStart_[0] = levelPos_[0];
}

// Tells the passes over the board that the cells at positions 0..lastUnfilled are the unfilled
// ones.
void ExactCoverSearch::WritePositionKeys(int lastUnfilled) {
  SearchLevel& level = Levels[Depth];
  level.positionKey.fill(0);
  for (int i = 0; i <= lastUnfilled; ++i)
    level.positionKey[level.Order[i]] = PositionKeyAt(i, level.Order[i]);
}

}  // namespace tessel
