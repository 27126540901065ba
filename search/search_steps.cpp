// The step procedures of the search: placing, removing, undoing.
#include <cassert>
#include <utility>

#include "search/exact_cover_search.h"

namespace tessel {

bool ExactCoverSearch::DLXNakedSingle(int Ptr) {
  const SearchLevel& level = Levels[Depth];
  int k = 0;
  while (k <= Ptr && state_.BitCount[level.Candidates[level.Order[k]]] != 1) ++k;
  if (k > Ptr) return false;
  PlaceSingle(k, Ptr);
  return true;
}

// Places a single that the outlook promises: the lone one, or the first of several in the order.
Outlook ExactCoverSearch::PlaceNextSingle(const Outlook& outlook) {
  const SearchLevel& level = Levels[Depth];
  if (outlook.singles == 1) return PlaceSingle(PositionOf(level.Order, outlook.single), Pos());
  int k = 0;
  while (state_.BitCount[level.Candidates[level.Order[k]]] != 1) ++k;
  return PlaceSingle(k, Pos());
}

// Places the single at position `k` and moves it to position `ptr`.
Outlook ExactCoverSearch::PlaceSingle(int k, int ptr) {
  SearchLevel& level = Levels[Depth];
  const int cell = level.Order[k];
  const Mask bit = level.Candidates[cell];
  const Outlook outlook = TakeFromPeers(level, lanes_, cell, bit);
  level.Digit[cell] = static_cast<std::int16_t>(LowestDigitOf(bit));
  level.Candidates[cell] = 0;
  std::swap(level.Order[k], level.Order[ptr]);
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
