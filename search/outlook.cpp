#include "search/outlook.h"

#include <algorithm>

#include "search/lane_passes.h"

namespace tessel {

namespace {

// Writes a lane as a part of whole vectors: a pass that reads them would have to wait for a lane
// written alone.
inline void SetLane(Lanes& lanes, int cell, std::int16_t value) {
  constexpr int width = 16;
  std::int16_t* const lane = lanes.data() + cell / width * width;
  const std::int16_t* const own = OneLane<-1>(cell % width);
#pragma GCC unroll 1
  for (int i = 0; i < width; ++i) {
    lane[i] = static_cast<std::int16_t>((lane[i] & ~own[i]) | (own[i] & value));
  }
}

}  // namespace

TESSEL_WIDE_VECTORS Outlook OutlookOf(const SearchLevel& level) {
  std::int16_t urgency = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    urgency = std::max(urgency, Urgency(level.Candidates[cell], level.Rank[cell]));
  }
  return Outlook(urgency);
}

TESSEL_WIDE_VECTORS Outlook TakeForTrial(SearchLevel& level, const HouseLanes& lanes, int placed,
                                         Mask bit, int u) {
  SetLane(level.Rank, placed, 0);
  const Lanes& peers = lanes.Peers(placed);
  const LogLanes& log = lanes.Log(placed);
  LogWords words;
  std::int16_t urgency = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const std::int16_t rank = level.Rank[cell];
    const auto taken =
        static_cast<Mask>(level.Candidates[cell] & peers[cell] & bit & ~LaneOfZero(rank));
    const std::int16_t kept = LaneOfZero(taken);
    words.first = static_cast<std::int16_t>(words.first | (log.first[cell] & ~kept));
    words.second = static_cast<std::int16_t>(words.second | (log.second[cell] & ~kept));
    const Mask left = Without(level.Candidates[cell], taken);
    level.Candidates[cell] = left;
    urgency = std::max(urgency, Urgency(left, rank));
  }
  level.UndoRowMask[u] = words.RowMask();
  level.UndoColumnMask[u] = words.ColumnMask();
  level.UndoCageMask[u] = words.CageMask();
  return Outlook(urgency);
}

TESSEL_WIDE_VECTORS void GiveBack(SearchLevel& level, const HouseLanes& lanes, int placed,
                                  std::int16_t rank, Mask bit, int u) {
  SetLane(level.Rank, placed, rank);
  const LogLanes& log = lanes.Log(placed);
  const auto words =
      LogWords::Of(level.UndoRowMask[u], level.UndoColumnMask[u], level.UndoCageMask[u]);
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const auto lost =
        static_cast<Mask>((log.first[cell] & words.first) | (log.second[cell] & words.second));
    level.Candidates[cell] = static_cast<Mask>(level.Candidates[cell] | (bit & ~LaneOfZero(lost)));
  }
}

}  // namespace tessel
