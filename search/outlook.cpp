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

// The lanes in which some cell has no candidate, and at most one.
struct Findings {
  Mask none = 0;
  Mask atMostOne = 0;

  void Add(Mask unfilled, Mask mask) {
    none = static_cast<Mask>(none | (unfilled & LaneOfEmpty(mask)));
    atMostOne = static_cast<Mask>(atMostOne | (unfilled & LaneOfEmpty(WithoutLowest(mask))));
  }
  Outlook Result() const { return {none != 0, atMostOne != 0}; }
};

}  // namespace

TESSEL_WIDE_VECTORS Outlook OutlookOf(const SearchLevel& level) {
  Findings findings;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    findings.Add(LaneOfEmpty(level.Digit[cell]), level.Candidates[cell]);
  }
  return findings.Result();
}

TESSEL_WIDE_VECTORS Outlook TakeFromPeers(SearchLevel& level, const HouseLanes& lanes, int placed,
                                          Mask bit) {
  const LogBits& row = lanes.Row(placed);
  const LogBits& column = lanes.Column(placed);
  const LogBits& cage = lanes.Cage(placed);
  const std::int16_t* own = OwnLane(placed);
  Findings findings;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const auto unfilled = static_cast<Mask>(LaneOfEmpty(level.Digit[cell]) & ~own[cell]);
    const auto logBits = static_cast<Mask>(row[cell] | column[cell] | cage[cell]);
    const auto taken = static_cast<Mask>(~LaneOfEmpty(logBits) & bit & unfilled);
    const Mask mask = Without(level.Candidates[cell], taken);
    level.Candidates[cell] = mask;
    findings.Add(unfilled, mask);
  }
  return findings.Result();
}

TESSEL_WIDE_VECTORS Outlook TakeFromPeersLogged(SearchLevel& level, const HouseLanes& lanes,
                                                int placed, Mask bit, int u) {
  const LogBits& row = lanes.Row(placed);
  const LogBits& column = lanes.Column(placed);
  const LogBits& cage = lanes.Cage(placed);
  const std::int16_t* own = OwnLane(placed);
  Mask rowMask = 0;
  Mask columnMask = 0;
  Mask cageMask = 0;
  Findings findings;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const auto unfilled = static_cast<Mask>(LaneOfEmpty(level.Digit[cell]) & ~own[cell]);
    const auto has =
        static_cast<Mask>(~LaneOfEmpty(static_cast<Mask>(level.Candidates[cell] & bit)) & unfilled);
    const auto inRow = static_cast<Mask>(row[cell] & has);
    const auto inColumn = static_cast<Mask>(column[cell] & has);
    const auto inCage = static_cast<Mask>(cage[cell] & has);
    rowMask = static_cast<Mask>(rowMask | inRow);
    columnMask = static_cast<Mask>(columnMask | inColumn);
    cageMask = static_cast<Mask>(cageMask | inCage);
    const Mask kept = LaneOfEmpty(static_cast<Mask>(inRow | inColumn | inCage));
    const Mask mask = Without(level.Candidates[cell], static_cast<Mask>(bit & ~kept));
    level.Candidates[cell] = mask;
    findings.Add(unfilled, mask);
  }
  level.UndoRowMask[u] = rowMask;
  level.UndoColumnMask[u] = columnMask;
  level.UndoCageMask[u] = cageMask;
  return findings.Result();
}

TESSEL_WIDE_VECTORS void GiveBack(SearchLevel& level, const HouseLanes& lanes, int placed, Mask bit,
                                  int u) {
  const LogBits& row = lanes.Row(placed);
  const LogBits& column = lanes.Column(placed);
  const LogBits& cage = lanes.Cage(placed);
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
