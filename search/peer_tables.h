// The peers of each cell: as rows of 16-bit lanes, one for each cell of the board, and as sets.
#pragma once

#include "core/cell_set.h"
#include "core/layout.h"
#include "search/search_level.h"

namespace tessel {

// The three masks of an entry of the undo log, 9 bits each, packed into two 16-bit lanes: an OR
// over all lanes of a pass then collects all three at once.
struct PackedUndoMasks {
  std::int16_t first = 0;   // the row mask below the lower 7 bits of the column mask
  std::int16_t second = 0;  // the cage mask below the upper 2 bits of the column mask

  // Packs three masks of 9 bits; the next three functions take them out again.
  static constexpr PackedUndoMasks Of(int row, int column, int cage) {
    return {static_cast<std::int16_t>(row | column << kSide),
            static_cast<std::int16_t>(cage | (column >> kColumnBits) << kSide)};
  }
  constexpr Mask RowMask() const { return first & kAllCandidates; }
  constexpr Mask ColumnMask() const {
    return static_cast<Mask>(static_cast<std::uint16_t>(first) >> kSide | (second >> kSide)
                                                                              << kColumnBits);
  }
  constexpr Mask CageMask() const { return second & kAllCandidates; }

  static constexpr int kColumnBits = 16 - kSide;
};

static_assert(PackedUndoMasks::Of(0x155, 0x1AA, 0x0F3).RowMask() == 0x155);
static_assert(PackedUndoMasks::Of(0x155, 0x1AA, 0x0F3).ColumnMask() == 0x1AA);
static_assert(PackedUndoMasks::Of(0x155, 0x1AA, 0x0F3).CageMask() == 0x0F3);

struct UndoMaskLanes {
  Lanes first{};
  Lanes second{};
};

// kLaneCount lanes of which the cell's own is `kNumber` and all others are 0.
template <std::int16_t kNumber>
const std::int16_t* SingleLaneVector(int cell) {
  // A window of kLaneCount lanes slides over a single set one.
  static constexpr auto lanes = [] {
    std::array<std::int16_t, 2 * kLaneCount> all{};
    all[kLaneCount] = kNumber;
    return all;
  }();
  return lanes.data() + (kLaneCount - cell);
}

// 48 KB: more than a first-level cache, so that the passes read three or nine lines of the second
// level for each placement.
class PeerTables {
 public:
  explicit PeerTables(const Layout& layout);

  // All candidates at the other cells that share a house with the cell, none elsewhere.
  const Lanes& Peers(int cell) const { return peers_[cell]; }
  // For each cell, those that share a house with it, and the cell.
  const PerCell<CellSet>& PeersAndSelf() const { return peersAndSelf_; }
  // For each peer of the cell, the one bit by which the undo log names it: in the row mask (bit c
  // in column c), else in the column mask (bit r in row r), else in the cage mask (bit k for the
  // cage's k-th cell). Packed as in PackedUndoMasks.
  const UndoMaskLanes& UndoMasks(int cell) const { return undoMasks_[cell]; }

 private:
  void AddCage(int cell, const HouseCells& cage);

  PerCell<Lanes> peers_;
  PerCell<CellSet> peersAndSelf_{};
  PerCell<UndoMaskLanes> undoMasks_;
};

}  // namespace tessel
