#include "search/exact_cover_search.h"

namespace tessel {

namespace {

constexpr int kLastPosition = kCellCount - 1;

}  // namespace

void SearchDriver::TrialPlaced(int /*pos*/, int /*cell*/) {}
void SearchDriver::SinglePlaced(int /*pos*/, int /*cell*/) {}

ExactCoverSearch::ExactCoverSearch(GameState& state, View& view) : state_(state), view_(view) {
  Reset();
}

void ExactCoverSearch::Reset() {
  lanes_.Follow(state_);
  Depth = 0;
  Levels.resize(1);
  levelPos_.resize(1);
  levelStart_.resize(1);
  Levels[0].UndoCount = 0;
  Levels[0].LastChoice.fill(0);
  Levels[0].Candidates.fill(kAllCandidates);
}

void ExactCoverSearch::StartEmpty(const PerCell<std::int16_t>& order) {
  Reset();
  Levels[0].Digit.fill(0);
  Levels[0].Order = order;
  StartAt(kLastPosition);
}

// Level 0 begins with the cells at positions 0..pos unfilled.
void ExactCoverSearch::StartAt(int pos) {
  ReadOrder(pos);
  levelPos_[0] = static_cast<std::int16_t>(pos);
  levelStart_[0] = levelPos_[0];
}

bool ExactCoverSearch::DLXNakedSingle(int Ptr) {
  ReadOrder(Ptr);
  SearchLevel& level = Levels[Depth];
  int k = 0;
  while (k <= Ptr && state_.BitCount[level.Candidates[level.Order[k]]] != 1) ++k;
  if (k > Ptr) return false;
  PlaceSingles(level, lanes_, Outlook::OfSingle(k, level.Order[k]), Ptr, 1, run_);
  WriteSingles(run_, Ptr, level);
  return true;
}

void ExactCoverSearch::DLXRemoveCandidates(int Cell, int Candidate, int RemovePtr) {
  ReadOrder(RemovePtr);
  PlaceTrial(Cell, Candidate);
}

// Tells the passes over the board that the cells at positions 0..ptr are those unfilled.
void ExactCoverSearch::ReadOrder(int ptr) {
  SearchLevel& level = Levels[Depth];
  level.Rank.fill(0);
  for (int i = 0; i <= ptr; ++i) level.Rank[level.Order[i]] = RankAt(i, level.Order[i]);
}

}  // namespace tessel
