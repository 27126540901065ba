// Trial placements and their reversal: passes over all lanes of a level.
#pragma once

#include "search/peer_tables.h"
#include "search/search_level.h"

namespace tessel {

// What the unfilled cells of a level have left, as the maximum of PriorityOf over its lanes.
class BoardStatus {
 public:
  explicit BoardStatus(std::int16_t priority) : priority_(priority) {}

  // Of a level whose first single is `cell`, at that position in Order; both 0..80.
  static BoardStatus OfSingle(int position, int cell) {
    return BoardStatus(PositionKeyAt(position, cell) & ~kUnfilledMark);
  }

  // An unfilled cell has no candidate left.
  bool Contradiction() const { return priority_ >= kUnfilledMark; }
  // There is no contradiction, and an unfilled cell has exactly one candidate.
  bool Single() const { return priority_ > 0 && !Contradiction(); }
  // The first such cell in Order and its position there; there must be a single.
  int SingleCell() const { return priority_ & kCellBits; }
  int SinglePosition() const { return kCellCount - (priority_ >> kPositionShift); }

 private:
  std::int16_t priority_;
};

namespace kernels {

// A look at every unfilled cell.
BoardStatus StatusOf(const SearchLevel& level);

// Places the digit of `bit` in `cell` as a trial: clears the cell's positionKey, removes `bit` from
// its unfilled peers and records those peers in undo entry `entry`, 1..80. The cell's own
// candidates stay. Returns the status of the level afterwards.
BoardStatus PlaceTrial(SearchLevel& level, const PeerTables& tables, int cell, Mask bit, int entry);

// UndoTrial and PlaceTrial in one pass, for a cell that holds the digit of `oldBit` by undo entry
// `entry`; that digit is replaced by the one of `bit`.
BoardStatus ReplaceTrial(SearchLevel& level, const PeerTables& tables, int cell, Mask oldBit,
                         Mask bit, int entry);

// Makes `cell` unfilled again, with this `positionKey`, and gives `bit` back to the peers that undo
// entry `entry` names.
void UndoTrial(SearchLevel& level, const PeerTables& tables, int cell, std::int16_t positionKey,
               Mask bit, int entry);

}  // namespace kernels

}  // namespace tessel
