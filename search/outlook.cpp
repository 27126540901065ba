#include "search/outlook.h"

#include <algorithm>

#include "search/lane_passes.h"

namespace tessel {

namespace {

// Writes a lane as a part of whole vectors: a pass that reads them would have to wait for a lane
// written alone. Unrolled, the loop would become single lanes.
inline void SetLane(Lanes& lanes, int cell, std::int16_t value) {
  constexpr int width = 16;
  std::int16_t* const lane = lanes.data() + cell / width * width;
  const std::int16_t* const own = OneLane<-1>(cell % width);
#pragma GCC unroll 1
  for (int i = 0; i < width; ++i) {
    lane[i] = static_cast<std::int16_t>((lane[i] & ~own[i]) | (own[i] & value));
  }
}

LogWords LogEntry(const SearchLevel& level, int u) {
  return LogWords::Of(level.UndoRowMask[u], level.UndoColumnMask[u], level.UndoCageMask[u]);
}

// All bits where the words name the cell, none where they do not.
constexpr std::int16_t LaneOfNamed(const LogLanes& log, LogWords words, int cell) {
  const int named = (log.first[cell] & words.first) | (log.second[cell] & words.second);
  return static_cast<std::int16_t>(~LaneOfZero(static_cast<std::int16_t>(named)));
}

// Takes the candidate of `bit` after giving that of `before` back to the cells of `lost`.
[[gnu::always_inline]] inline Outlook Take(SearchLevel& level, const HouseLanes& lanes, int placed,
                                           Mask before, LogWords lost, Mask bit, int u) {
  const Lanes& peers = lanes.Peers(placed);
  const LogLanes& log = lanes.Log(placed);
  LogWords words;
  std::int16_t urgency = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const std::int16_t rank = level.Rank[cell];
    const auto candidates =
        static_cast<Mask>(level.Candidates[cell] | (before & LaneOfNamed(log, lost, cell)));
    const auto taken = static_cast<Mask>(candidates & peers[cell] & bit & ~LaneOfZero(rank));
    const std::int16_t kept = LaneOfZero(taken);
    words.first = static_cast<std::int16_t>(words.first | (log.first[cell] & ~kept));
    words.second = static_cast<std::int16_t>(words.second | (log.second[cell] & ~kept));
    const Mask left = Without(candidates, taken);
    level.Candidates[cell] = left;
    urgency = std::max(urgency, Urgency(left, rank));
  }
  level.UndoRowMask[u] = words.RowMask();
  level.UndoColumnMask[u] = words.ColumnMask();
  level.UndoCageMask[u] = words.CageMask();
  return Outlook(urgency);
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
  return Take(level, lanes, placed, 0, LogWords{}, bit, u);
}

TESSEL_WIDE_VECTORS Outlook TakeForNextTrial(SearchLevel& level, const HouseLanes& lanes,
                                             int placed, Mask before, Mask bit, int u) {
  return Take(level, lanes, placed, before, LogEntry(level, u), bit, u);
}

TESSEL_WIDE_VECTORS void GiveBack(SearchLevel& level, const HouseLanes& lanes, int placed,
                                  std::int16_t rank, Mask bit, int u) {
  SetLane(level.Rank, placed, rank);
  const LogLanes& log = lanes.Log(placed);
  const LogWords lost = LogEntry(level, u);
  for (int cell = 0; cell < kLaneCount; ++cell) {
    level.Candidates[cell] =
        static_cast<Mask>(level.Candidates[cell] | (bit & LaneOfNamed(log, lost, cell)));
  }
}

}  // namespace tessel
