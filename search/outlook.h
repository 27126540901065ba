// Removals and their reversal over whole levels: passes over the board in 16-bit lanes, written so
// that compilers vectorise them.
#pragma once

#include "search/house_lanes.h"
#include "search/search_level.h"

namespace tessel {

// What the unfilled cells of a level have left.
struct Outlook {
  bool deadEnd;  // an unfilled cell has no candidate left
  bool single;   // an unfilled cell has exactly one; says nothing where there is a dead end
};

Outlook OutlookOf(const SearchLevel& level);

// Takes the digit of `bit` from the unfilled cells that share a house with `cell`, which has no
// other candidate and counts as filled.
Outlook TakeFromPeers(SearchLevel& level, const HouseLanes& lanes, int cell, Mask bit);

// The same for a cell with any candidates; writes down in the three masks of log entry `u` which
// cells have lost the digit.
Outlook TakeFromPeersLogged(SearchLevel& level, const HouseLanes& lanes, int cell, Mask bit, int u);

// Gives the digit of `bit` back to the cells that log entry `u` names.
void GiveBack(SearchLevel& level, const HouseLanes& lanes, int cell, Mask bit, int u);

}  // namespace tessel
