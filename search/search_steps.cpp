// The step procedures of the search: placing, removing, undoing.
#include <cassert>
#include <utility>

#include "search/exact_cover_search.h"

namespace tessel {

bool ExactCoverSearch::DLXNakedSingle(int Ptr) {
  return PlaceSingle(Ptr).has_value();
}

// The outlook after the placement; none when there was no single.
std::optional<Outlook> ExactCoverSearch::PlaceSingle(int Ptr) {
  SearchLevel& level = Levels[Depth];
  int k = 0;
  while (k <= Ptr && state_.BitCount[level.Candidates[level.Order[k]]] != 1) ++k;
  if (k > Ptr) return std::nullopt;
  const int cell = level.Order[k];
  const Mask bit = level.Candidates[cell];
  const Outlook outlook = TakeFromPeers(level, lanes_, cell, bit);
  level.Digit[cell] = static_cast<std::int16_t>(LowestDigitOf(bit));
  level.Candidates[cell] = 0;
  std::swap(level.Order[k], level.Order[Ptr]);
  return outlook;
}

void ExactCoverSearch::DLXRemoveCandidates(int Cell, int Candidate, int RemovePtr) {
  Remove(Cell, Candidate, RemovePtr);
}

Outlook ExactCoverSearch::Remove(int cell, int digit, [[maybe_unused]] int removePtr) {
  SearchLevel& level = Levels[Depth];
  assert(removePtr < 0 || level.Digit[level.Order[removePtr]] == 0);
  const int u = ++level.UndoCount;
  level.UndoCell[u] = static_cast<std::int16_t>(cell);
  level.UndoDigit[u] = static_cast<std::int16_t>(digit);
  const Outlook outlook = TakeFromPeersLogged(level, lanes_, cell, BitOf(digit), u);
  level.Digit[cell] = static_cast<std::int16_t>(digit);
  return outlook;
}

void ExactCoverSearch::DLXUndo() {
  SearchLevel& level = Levels[Depth];
  const int u = level.UndoCount;
  const int cell = level.UndoCell[u];
  level.Digit[cell] = 0;
  GiveBack(level, lanes_, cell, BitOf(level.UndoDigit[u]), u);
  --level.UndoCount;
}

}  // namespace tessel
