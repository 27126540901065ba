#include "search/outlook.h"

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

// All bits where the mask is empty, none where it is not. The narrow types here and below keep
// every lane at 16 bits.
constexpr Mask LaneOfEmpty(Mask mask) {
  return static_cast<Mask>(mask == 0 ? -1 : 0);
}

constexpr Mask WithoutLowest(Mask mask) {
  return static_cast<Mask>(mask & static_cast<Mask>(mask - 1));
}

}  // namespace

TESSEL_WIDE_VECTORS Outlook OutlookOf(const SearchLevel& level) {
  Mask none = 0;
  Mask atMostOne = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const Mask unfilled = LaneOfEmpty(level.Digit[cell]);
    const Mask mask = level.Candidates[cell];
    none = static_cast<Mask>(none | (unfilled & LaneOfEmpty(mask)));
    atMostOne = static_cast<Mask>(atMostOne | (unfilled & LaneOfEmpty(WithoutLowest(mask))));
  }
  return {none != 0, atMostOne != 0};
}

TESSEL_WIDE_VECTORS Outlook TakeFromPeers(SearchLevel& level, const HouseLanes& lanes, int placed,
                                          Mask bit) {
  const Lanes& peers = lanes.Peers(placed);
  Mask none = 0;
  Mask atMostOneCount = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const Mask unfilled = LaneOfEmpty(level.Digit[cell]);
    const auto taken = static_cast<Mask>(peers[cell] & bit & unfilled);
    const Mask mask = Without(level.Candidates[cell], taken);
    level.Candidates[cell] = mask;
    none = static_cast<Mask>(none | (unfilled & LaneOfEmpty(mask)));
    const auto atMostOne = static_cast<Mask>(unfilled & LaneOfEmpty(WithoutLowest(mask)));
    atMostOneCount = static_cast<Mask>(atMostOneCount - atMostOne);
  }
  return {none != 0, atMostOneCount > 1};  // the placed cell is one itself
}

TESSEL_WIDE_VECTORS Outlook TakeFromPeersLogged(SearchLevel& level, const HouseLanes& lanes,
                                                int placed, Mask bit, int u) {
  const Lanes& row = lanes.Row(placed);
  const Lanes& column = lanes.Column(placed);
  const Lanes& cage = lanes.Cage(placed);
  const Lanes& peers = lanes.Peers(placed);
  const std::int16_t* own = OwnLane(placed);
  Mask rowMask = 0;
  Mask columnMask = 0;
  Mask cageMask = 0;
  Mask none = 0;
  Mask atMostOne = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const auto unfilled = static_cast<Mask>(LaneOfEmpty(level.Digit[cell]) & ~own[cell]);
    const auto taken = static_cast<Mask>(level.Candidates[cell] & peers[cell] & bit & unfilled);
    const auto lost = static_cast<Mask>(~LaneOfEmpty(taken));
    const Mask outsideLines = LaneOfEmpty(static_cast<Mask>(row[cell] | column[cell]));
    rowMask = static_cast<Mask>(rowMask | (row[cell] & lost));
    columnMask = static_cast<Mask>(columnMask | (column[cell] & lost));
    cageMask = static_cast<Mask>(cageMask | (cage[cell] & lost & outsideLines));
    const Mask mask = Without(level.Candidates[cell], taken);
    level.Candidates[cell] = mask;
    none = static_cast<Mask>(none | (unfilled & LaneOfEmpty(mask)));
    atMostOne = static_cast<Mask>(atMostOne | (unfilled & LaneOfEmpty(WithoutLowest(mask))));
  }
  level.UndoRowMask[u] = rowMask;
  level.UndoColumnMask[u] = columnMask;
  level.UndoCageMask[u] = cageMask;
  return {none != 0, atMostOne != 0};
}

TESSEL_WIDE_VECTORS void GiveBack(SearchLevel& level, const HouseLanes& lanes, int placed, Mask bit,
                                  int u) {
  const Lanes& row = lanes.Row(placed);
  const Lanes& column = lanes.Column(placed);
  const Lanes& cage = lanes.Cage(placed);
  const Mask rowMask = level.UndoRowMask[u];
  const Mask columnMask = level.UndoColumnMask[u];
  const Mask cageMask = level.UndoCageMask[u];
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const auto lost = static_cast<Mask>((row[cell] & rowMask) | (column[cell] & columnMask) |
                                        (cage[cell] & cageMask));
    level.Candidates[cell] = static_cast<Mask>(level.Candidates[cell] | (bit & ~LaneOfEmpty(lost)));
  }
}

}  // namespace tessel
