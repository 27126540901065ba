#include "search/peer_tables.h"

namespace tessel {

namespace {

// What the rows and columns, which no layout changes, make of the tables.
struct Lines {
  PerCell<Lanes> peers{};
  PerCell<UndoMaskLanes> undoMasks{};
};

constexpr Lines kLines = [] {
  Lines lines;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const auto add = [&](int other, PackedUndoMasks words) {
      if (other == cell) return;
      lines.peers[cell][other] = kAllCandidates;
      lines.undoMasks[cell].first[other] = words.first;
      lines.undoMasks[cell].second[other] = words.second;
    };
    for (int i = 0; i < kSide; ++i) {
      add(CellAt(RowOf(cell), i), PackedUndoMasks::Of(1 << i, 0, 0));
      add(CellAt(i, ColumnOf(cell)), PackedUndoMasks::Of(0, 1 << i, 0));
    }
  }
  return lines;
}();

}  // namespace

PeerTables::PeerTables(const Layout& layout) : peers_(kLines.peers), undoMasks_(kLines.undoMasks) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    peersAndSelf_[cell] = layout.PeersOf(cell) | CellSet::Of(cell);
    AddCage(cell, layout.CellsOf(layout.CageOf(cell)));
  }
}

// The cells of the cage that the row and the column have not named yet.
void PeerTables::AddCage(int cell, const HouseCells& cage) {
  for (int k = 0; k < kSide; ++k) {
    const int other = cage[k];
    const bool inLine = other == cell || peers_[cell][other] != 0;
    if (inLine) continue;
    peers_[cell][other] = kAllCandidates;
    undoMasks_[cell].second[other] = PackedUndoMasks::Of(0, 0, 1 << k).second;
  }
}

}  // namespace tessel
