#include "search/trial_kernels.h"

#include <algorithm>

#include "search/lane_passes.h"

namespace tessel::kernels {

namespace {

// Changes one 16-bit lane by rewriting its 32-byte group. A plain 2-byte store would stall the
// 32-byte load of the pass that follows, because the processor cannot forward the store to it.
// `unroll 1` keeps GCC from turning the loop back into 2-byte stores.
inline void SetLane(Lanes& lanes, int cell, std::int16_t value) {
  constexpr int kGroup = 16;
  std::int16_t* const group = lanes.data() + cell / kGroup * kGroup;
  const std::int16_t* const own = SingleLaneVector<-1>(cell % kGroup);
#pragma GCC unroll 1
  for (int i = 0; i < kGroup; ++i) {
    group[i] = static_cast<std::int16_t>((group[i] & ~own[i]) | (own[i] & value));
  }
}

PackedUndoMasks UndoEntry(const SearchLevel& level, int entry) {
  return PackedUndoMasks::Of(level.UndoRowMask[entry], level.UndoColumnMask[entry],
                             level.UndoCageMask[entry]);
}

// All bits where the packed masks name the cell, none where they do not.
constexpr std::int16_t AllOnesIfLogged(const UndoMaskLanes& names, PackedUndoMasks masks,
                                       int cell) {
  const int named = (names.first[cell] & masks.first) | (names.second[cell] & masks.second);
  return static_cast<std::int16_t>(~AllOnesIfZero(static_cast<std::int16_t>(named)));
}

// Gives `oldBit` back to the cells that `lost` names, then removes `bit` from the unfilled peers of
// `placed` and records them in undo entry `entry`.
[[gnu::always_inline]] inline BoardStatus Place(SearchLevel& level, const PeerTables& tables,
                                                int placed, Mask oldBit, PackedUndoMasks lost,
                                                Mask bit, int entry) {
  const Lanes& peers = tables.Peers(placed);
  const UndoMaskLanes& names = tables.UndoMasks(placed);
  PackedUndoMasks masks;
  std::int16_t priority = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    const std::int16_t key = level.positionKey[cell];
    const auto candidates =
        static_cast<Mask>(level.Candidates[cell] | (oldBit & AllOnesIfLogged(names, lost, cell)));
    const auto removed = static_cast<Mask>(candidates & peers[cell] & bit & ~AllOnesIfZero(key));
    const std::int16_t kept = AllOnesIfZero(removed);
    masks.first = static_cast<std::int16_t>(masks.first | (names.first[cell] & ~kept));
    masks.second = static_cast<std::int16_t>(masks.second | (names.second[cell] & ~kept));
    const Mask left = Without(candidates, removed);
    level.Candidates[cell] = left;
    priority = std::max(priority, PriorityOf(left, key));
  }
  level.UndoRowMask[entry] = masks.RowMask();
  level.UndoColumnMask[entry] = masks.ColumnMask();
  level.UndoCageMask[entry] = masks.CageMask();
  return BoardStatus(priority);
}

}  // namespace

TESSEL_WIDE_VECTORS BoardStatus StatusOf(const SearchLevel& level) {
  std::int16_t priority = 0;
  for (int cell = 0; cell < kLaneCount; ++cell) {
    priority = std::max(priority, PriorityOf(level.Candidates[cell], level.positionKey[cell]));
  }
  return BoardStatus(priority);
}

TESSEL_WIDE_VECTORS BoardStatus PlaceTrial(SearchLevel& level, const PeerTables& tables, int placed,
                                           Mask bit, int entry) {
  SetLane(level.positionKey, placed, 0);
  return Place(level, tables, placed, 0, PackedUndoMasks{}, bit, entry);
}

TESSEL_WIDE_VECTORS BoardStatus ReplaceTrial(SearchLevel& level, const PeerTables& tables,
                                             int placed, Mask oldBit, Mask bit, int entry) {
  return Place(level, tables, placed, oldBit, UndoEntry(level, entry), bit, entry);
}

TESSEL_WIDE_VECTORS void UndoTrial(SearchLevel& level, const PeerTables& tables, int placed,
                                   std::int16_t positionKey, Mask bit, int entry) {
  SetLane(level.positionKey, placed, positionKey);
  const UndoMaskLanes& names = tables.UndoMasks(placed);
  const PackedUndoMasks lost = UndoEntry(level, entry);
  for (int cell = 0; cell < kLaneCount; ++cell) {
    level.Candidates[cell] =
        static_cast<Mask>(level.Candidates[cell] | (bit & AllOnesIfLogged(names, lost, cell)));
  }
}

}  // namespace tessel::kernels
