#include "search/singles_kernels.h"

#include <algorithm>
#include <cassert>

#include "search/lane_passes.h"

namespace tessel::kernels {

namespace {

// OR-ed into the lane of a placed single: two high bits, so that the lane can never again have one
// bit or none and drops out of PriorityOf. The sign marks it as placed.
constexpr std::int16_t kPlaced = -0x4000;
static_assert(PriorityOf(kPlaced | 0b1, PositionKeyAt(0, 7)) == 0 &&
              PriorityOf(kPlaced, PositionKeyAt(0, 7)) == 0);

}  // namespace

// The first single is read from the level, all others from the scratch, which saves a copy.
TESSEL_WIDE_VECTORS BoardStatus PropagateSingles(const SearchLevel& level, const PeerTables& tables,
                                                 BoardStatus status, int lastUnfilled,
                                                 int maxSingles, SinglesScratch& scratch) {
  assert(status.Single() && lastUnfilled >= status.SinglePosition());
  scratch.Order = level.Order;
  scratch.count = 0;
  const Lanes* oldCandidates = &level.Candidates;
  const Lanes* oldKeys = &level.positionKey;
  do {
    const int single = status.SingleCell();
    const int position = status.SinglePosition();
    const Mask bit = (*oldCandidates)[single];
    const int last = scratch.Order[lastUnfilled];
    scratch.Order[position] = static_cast<std::int16_t>(last);
    scratch.Order[lastUnfilled] = static_cast<std::int16_t>(single);
    ++scratch.count;
    // What the move from `lastUnfilled` to `position` adds to the key of the last cell.
    const auto nearer = static_cast<std::int16_t>((lastUnfilled - position) << kPositionShift);
    const std::int16_t* const ownLast = SingleLaneVector<-1>(last);
    const std::int16_t* const placed = SingleLaneVector<kPlaced>(single);
    const Lanes& peers = tables.Peers(single);
    std::int16_t priority = 0;
    TESSEL_SAME_LANES
    for (int i = 0; i < kLaneCount; ++i) {
      const auto left = static_cast<Mask>(Without((*oldCandidates)[i], peers[i] & bit) | placed[i]);
      const auto key = static_cast<std::int16_t>((*oldKeys)[i] + (ownLast[i] & nearer));
      scratch.Candidates[i] = left;
      scratch.positionKey[i] = key;
      priority = std::max(priority, PriorityOf(left, key));
    }
    status = BoardStatus(priority);
    oldCandidates = &scratch.Candidates;
    oldKeys = &scratch.positionKey;
    --lastUnfilled;
  } while (status.Single() && scratch.count < maxSingles);
  return status;
}

TESSEL_WIDE_VECTORS void CommitSingles(const SinglesScratch& scratch, int lastUnfilled,
                                       SearchLevel& level) {
  TESSEL_SAME_LANES
  for (int i = 0; i < kLaneCount; ++i) {
    const std::int16_t wasFilled = AllOnesIfZero(level.positionKey[i]);
    const std::int16_t single = AllOnesIfNegative(scratch.Candidates[i]);
    level.Candidates[i] = static_cast<Mask>((level.Candidates[i] & wasFilled) |
                                            (scratch.Candidates[i] & ~(wasFilled | single)));
    level.positionKey[i] = Without(scratch.positionKey[i], single);
  }
  level.Order = scratch.Order;
  for (int n = 0; n < scratch.count; ++n) {
    const int cell = scratch.Order[lastUnfilled - n];
    level.Digit[cell] = static_cast<std::int16_t>(LowestDigitOf(scratch.Candidates[cell]));
  }
}

}  // namespace tessel::kernels
