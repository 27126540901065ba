// Naked singles placed one after another in scratch memory: a level is opened for them only when
// they lead to no contradiction.
#pragma once

#include "search/trial_kernels.h"

namespace tessel {

// Scratch copy of what propagation changes, so that a contradiction costs no level. A member of the
// search, not a local, to save clearing 550 bytes a call. Until kernels::CommitSingles, three
// things differ from a SearchLevel: a placed single holds its digit's bit and two high bits (its
// lane is negative); it still has its positionKey; the lanes of cells filled before hold leftovers
// that must not be read.
struct SinglesScratch {
  CellOrder Order{};
  Lanes Candidates{};
  Lanes positionKey{};
  int count = 0;  // of the singles
};

namespace kernels {

// Places up to `maxSingles` singles of `level`, of which `status` names the first, and removes each
// digit from the unfilled peers. The cells move to the positions from `lastUnfilled` down. Returns
// the status after the last single.
BoardStatus PropagateSingles(const SearchLevel& level, const PeerTables& tables, BoardStatus status,
                             int lastUnfilled, int maxSingles, SinglesScratch& scratch);

// Writes the singles into `level`, which must equal the one that they were found in, with the same
// `lastUnfilled`.
void CommitSingles(const SinglesScratch& scratch, int lastUnfilled, SearchLevel& level);

}  // namespace kernels

}  // namespace tessel
