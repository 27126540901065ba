// Removals and their reversal over whole levels: passes over the board in 16-bit lanes, written so
// that compilers vectorise them.
#pragma once

#include "search/house_lanes.h"
#include "search/search_level.h"

namespace tessel {

// What the unfilled cells of a level have left.
class Outlook {
 public:
  explicit Outlook(std::int16_t urgency) : urgency_(urgency) {}

  // An unfilled cell has no candidate left.
  bool DeadEnd() const { return urgency_ > kCellCount; }
  // There is no dead end, and an unfilled cell has exactly one.
  bool Single() const { return urgency_ > 0 && !DeadEnd(); }
  // The first such cell's position in Order; there must be a single.
  int SinglePosition() const { return PositionOf(urgency_); }

 private:
  std::int16_t urgency_;  // beyond all ranks, the single's rank, or 0
};

Outlook OutlookOf(const SearchLevel& level);

// Fills `cell`, whose only candidate is that of `bit`, and takes this from the unfilled cells that
// share a house with it.
Outlook TakeForSingle(SearchLevel& level, const HouseLanes& lanes, int cell, Mask bit);

// Fills `cell`, which keeps its candidates, and takes that of `bit` from the unfilled cells that
// share a house with it; writes down in the three masks of log entry `u` which have lost it.
Outlook TakeForTrial(SearchLevel& level, const HouseLanes& lanes, int cell, Mask bit, int u);

// Empties `cell` again, which stands at the position of `rank`, and gives the candidate of `bit`
// back to the cells that log entry `u` names.
void GiveBack(SearchLevel& level, const HouseLanes& lanes, int cell, std::int16_t rank, Mask bit,
              int u);

}  // namespace tessel
