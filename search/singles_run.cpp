#include "search/singles_run.h"

#include <algorithm>

#include "search/lane_passes.h"

namespace tessel {

namespace {

// What the candidates of a single that is placed get beside its digit: no longer one candidate, nor
// none, whatever is taken.
constexpr std::int16_t kPlaced = -0x4000;
static_assert(Urgency(kPlaced | 0b1, RankAt(0, 7)) == 0 && Urgency(kPlaced, RankAt(0, 7)) == 0);

}  // namespace

TESSEL_WIDE_VECTORS Outlook PlaceSingles(const SearchLevel& level, const HouseLanes& lanes,
                                         Outlook outlook, int ptr, int most, SinglesRun& run) {
  run.Order = level.Order;
  run.count = 0;
  const Lanes* before = &level.Candidates;
  const Lanes* ranks = &level.Rank;
  do {
    const int single = outlook.SingleCell();
    const int position = outlook.SinglePosition();
    const Mask bit = (*before)[single];
    const int last = run.Order[ptr];
    run.Order[position] = static_cast<std::int16_t>(last);
    run.Order[ptr] = static_cast<std::int16_t>(single);
    ++run.count;
    const auto nearer = static_cast<std::int16_t>((ptr - position) << kRankShift);
    const std::int16_t* const ownLast = OneLane<-1>(last);
    const std::int16_t* const placed = OneLane<kPlaced>(single);
    const Lanes& peers = lanes.Peers(single);
    std::int16_t urgency = 0;
    TESSEL_SAME_LANES
    for (int i = 0; i < kLaneCount; ++i) {
      const auto left = static_cast<Mask>(Without((*before)[i], peers[i] & bit) | placed[i]);
      const auto rank = static_cast<std::int16_t>((*ranks)[i] + (ownLast[i] & nearer));
      run.Candidates[i] = left;
      run.Rank[i] = rank;
      urgency = std::max(urgency, Urgency(left, rank));
    }
    outlook = Outlook(urgency);
    before = &run.Candidates;
    ranks = &run.Rank;
    --ptr;
  } while (outlook.Single() && run.count < most);
  return outlook;
}

TESSEL_WIDE_VECTORS void WriteSingles(const SinglesRun& run, int ptr, SearchLevel& level) {
  TESSEL_SAME_LANES
  for (int i = 0; i < kLaneCount; ++i) {
    const std::int16_t wasFilled = LaneOfZero(level.Rank[i]);
    const std::int16_t single = LaneOfNegative(run.Candidates[i]);
    level.Candidates[i] = static_cast<Mask>((level.Candidates[i] & wasFilled) |
                                            (run.Candidates[i] & ~(wasFilled | single)));
    level.Rank[i] = Without(run.Rank[i], single);
  }
  level.Order = run.Order;
  for (int n = 0; n < run.count; ++n) {
    const int cell = run.Order[ptr - n];
    level.Digit[cell] = static_cast<std::int16_t>(LowestDigitOf(run.Candidates[cell]));
  }
}

}  // namespace tessel
