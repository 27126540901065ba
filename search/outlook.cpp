#include "search/outlook.h"

#include <algorithm>

// Where the compiler can, the passes are also built for wider vectors and chosen when the program
// starts on a processor that has them.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__)
#define TESSEL_WIDE_VECTORS __attribute__((target_clones("avx2", "default")))
#else
#define TESSEL_WIDE_VECTORS
#endif

namespace tessel {

namespace {

// All bits where the number is 0, none where it is not. The narrow types here and below keep every
// lane at 16 bits.
constexpr std::int16_t LaneOfZero(std::int16_t number) {
  return static_cast<std::int16_t>(-static_cast<int>(number == 0));
}

constexpr Mask WithoutLowest(Mask mask) {
  return static_cast<Mask>(mask & static_cast<Mask>(mask - 1));
}

// More than all ranks, but 0 for the 0 of filled cells.
constexpr std::int16_t BeyondRanks(std::int16_t rank) {
  return static_cast<std::int16_t>(rank << 7);
}
static_assert(BeyondRanks(1) > kCellCount && kCellCount << 7 <= INT16_MAX);

// What a cell with these candidates contributes to the outlook.
constexpr std::int16_t Urgency(Mask candidates, std::int16_t rank) {
  const std::int16_t atMostOne = LaneOfZero(WithoutLowest(candidates));
  const std::int16_t none = LaneOfZero(candidates);
  return static_cast<std::int16_t>((atMostOne & rank) | (none & BeyondRanks(rank)));
}

}  // namespace

TESSEL_WIDE_VECTORS Outlook OutlookOf(const SearchLevel& level) {
  std::int16_t urgency = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    urgency = std::max(urgency, Urgency(level.Candidates[cell], level.Rank[cell]));
  }
  return Outlook(urgency);
}

TESSEL_WIDE_VECTORS Outlook TakeForSingle(SearchLevel& level, const HouseLanes& lanes, int placed,
                                          Mask bit) {
  const Lanes& peers = lanes.Peers(placed);
  const std::int16_t* own = OwnLane(placed);
  std::int16_t urgency = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const auto rank = static_cast<std::int16_t>(level.Rank[cell] & ~own[cell]);
    const auto taken = static_cast<Mask>((peers[cell] & bit & ~LaneOfZero(rank)) | own[cell]);
    const Mask left = Without(level.Candidates[cell], taken);
    level.Candidates[cell] = left;
    level.Rank[cell] = rank;
    urgency = std::max(urgency, Urgency(left, rank));
  }
  return Outlook(urgency);
}

TESSEL_WIDE_VECTORS Outlook TakeForTrial(SearchLevel& level, const HouseLanes& lanes, int placed,
                                         Mask bit, int u) {
  const LogLanes& log = lanes.Log(placed);
  const std::int16_t* own = OwnLane(placed);
  LogWords words;
  std::int16_t urgency = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const auto rank = static_cast<std::int16_t>(level.Rank[cell] & ~own[cell]);
    const std::int16_t noPeer = LaneOfZero(static_cast<Mask>(log.first[cell] | log.second[cell]));
    const auto taken =
        static_cast<Mask>(level.Candidates[cell] & bit & ~(LaneOfZero(rank) | noPeer));
    const std::int16_t kept = LaneOfZero(taken);
    words.first = static_cast<std::int16_t>(words.first | (log.first[cell] & ~kept));
    words.second = static_cast<std::int16_t>(words.second | (log.second[cell] & ~kept));
    const Mask left = Without(level.Candidates[cell], taken);
    level.Candidates[cell] = left;
    level.Rank[cell] = rank;
    urgency = std::max(urgency, Urgency(left, rank));
  }
  level.UndoRowMask[u] = words.RowMask();
  level.UndoColumnMask[u] = words.ColumnMask();
  level.UndoCageMask[u] = words.CageMask();
  return Outlook(urgency);
}

TESSEL_WIDE_VECTORS void GiveBack(SearchLevel& level, const HouseLanes& lanes, int placed,
                                  std::int16_t rank, Mask bit, int u) {
  const LogLanes& log = lanes.Log(placed);
  const auto words =
      LogWords::Of(level.UndoRowMask[u], level.UndoColumnMask[u], level.UndoCageMask[u]);
  const std::int16_t* own = OwnLane(placed);
  for (int cell = 0; cell < kLaneCount; ++cell) {
    level.Rank[cell] = static_cast<std::int16_t>(level.Rank[cell] | (own[cell] & rank));
    const auto lost =
        static_cast<Mask>((log.first[cell] & words.first) | (log.second[cell] & words.second));
    level.Candidates[cell] = static_cast<Mask>(level.Candidates[cell] | (bit & ~LaneOfZero(lost)));
  }
}

}  // namespace tessel
