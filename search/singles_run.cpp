#include "search/singles_run.h"

#include <algorithm>

#include "search/lane_passes.h"

namespace tessel {

TESSEL_WIDE_VECTORS Outlook PlaceSingles(const SearchLevel& level, const HouseLanes& lanes,
                                         Outlook outlook, int ptr, int most, SinglesRun& run) {
  run.Order = level.Order;
  // A loop copies whole vectors, and the passes below needn't wait for them.
#pragma GCC ivdep
  for (int i = 0; i < kLaneCount; ++i) run.Rank[i] = level.Rank[i];
  run.count = 0;
  const Lanes* before = &level.Candidates;
  do {
    const int single = outlook.SingleCell();
    const int position = outlook.SinglePosition();
    const Mask bit = (*before)[single];
    const int last = run.Order[ptr];
    run.Order[position] = static_cast<std::int16_t>(last);
    run.Order[ptr] = static_cast<std::int16_t>(single);
    run.bits[run.count++] = bit;
    const auto nearer = static_cast<std::int16_t>((ptr - position) << kRankShift);
    const std::int16_t* const ownLast = OwnLane(last);
    const std::int16_t* const own = OwnLane(single);
    const Lanes& peers = lanes.Peers(single);
    std::int16_t urgency = 0;
#pragma GCC ivdep
    for (int i = 0; i < kLaneCount; ++i) {
      const auto left = static_cast<Mask>(Without((*before)[i], peers[i] & bit) | own[i]);
      const auto rank = static_cast<std::int16_t>(run.Rank[i] + (ownLast[i] & nearer));
      run.Candidates[i] = left;
      run.Rank[i] = rank;
      urgency = std::max(urgency, Urgency(left, rank));
    }
    outlook = Outlook(urgency);
    before = &run.Candidates;
    --ptr;
  } while (outlook.Single() && run.count < most);
  return outlook;
}

TESSEL_WIDE_VECTORS void WriteSingles(const SinglesRun& run, int ptr, SearchLevel& level) {
#pragma GCC ivdep
  for (int i = 0; i < kLaneCount; ++i) {
    const std::int16_t wasFilled = LaneOfZero(level.Rank[i]);
    const std::int16_t single = LaneOfNegative(run.Candidates[i]);
    level.Candidates[i] = static_cast<Mask>((level.Candidates[i] & wasFilled) |
                                            (run.Candidates[i] & ~(wasFilled | single)));
    level.Rank[i] = Without(run.Rank[i], single);
  }
  level.Order = run.Order;
  for (int n = 0; n < run.count; ++n) {
    level.Digit[run.Order[ptr - n]] = static_cast<std::int16_t>(LowestDigitOf(run.bits[n]));
  }
}

}  // namespace tessel
