// Removals of trial placements and their reversal over whole levels: passes over the board in
// 16-bit lanes.
#pragma once

#include "search/house_lanes.h"
#include "search/search_level.h"

namespace tessel {

// What the unfilled cells of a level have left.
class Outlook {
 public:
  // The highest Urgency of them all.
  explicit Outlook(std::int16_t urgency) : urgency_(urgency) {}

  static Outlook OfSingle(int position, int cell) {
    return Outlook(RankAt(position, cell) & ~kUnfilledMark);
  }

  // An unfilled cell has no candidate left.
  bool DeadEnd() const { return urgency_ >= kUnfilledMark; }
  // There is no dead end, and an unfilled cell has exactly one.
  bool Single() const { return urgency_ > 0 && !DeadEnd(); }
  // The first such cell in Order and its position there; there must be a single.
  int SingleCell() const { return urgency_ & kCellBits; }
  int SinglePosition() const { return kCellCount - (urgency_ >> kRankShift); }

 private:
  std::int16_t urgency_;
};

Outlook OutlookOf(const SearchLevel& level);

// Fills `cell`, which keeps its candidates, and takes that of `bit` from the unfilled cells that
// share a house with it; writes down in the three masks of log entry `u` which have lost it.
Outlook TakeForTrial(SearchLevel& level, const HouseLanes& lanes, int cell, Mask bit, int u);

// The same for a cell that holds the digit of `before` by log entry `u`, which is taken back.
Outlook TakeForNextTrial(SearchLevel& level, const HouseLanes& lanes, int cell, Mask before,
                         Mask bit, int u);

// Marks `cell` as unfilled again, with this `rank`, and gives the candidate of `bit` back
// to the cells that log entry `u` names.
void GiveBack(SearchLevel& level, const HouseLanes& lanes, int cell, std::int16_t rank, Mask bit,
              int u);

}  // namespace tessel
