#include "search/house_lanes.h"

namespace tessel {

namespace {

// What the rows and columns make of the tables.
struct Lines {
  PerCell<Lanes> peers{};
  PerCell<LogLanes> log{};
  PerCell<CellSet> houses{};
};

constexpr Lines kLines = [] {
  Lines lines;
  for (int cell = 0; cell < kCellCount; ++cell) {
    lines.houses[cell] = CellSet::Of(cell);
    const auto add = [&](int other, LogWords words) {
      if (other == cell) return;
      lines.peers[cell][other] = kAllCandidates;
      lines.log[cell].first[other] = words.first;
      lines.log[cell].second[other] = words.second;
      lines.houses[cell] = lines.houses[cell] | CellSet::Of(other);
    };
    for (int i = 0; i < kSide; ++i) {
      add(CellAt(RowOf(cell), i), LogWords::Of(1 << i, 0, 0));
      add(CellAt(i, ColumnOf(cell)), LogWords::Of(0, 1 << i, 0));
    }
  }
  return lines;
}();

}  // namespace

void HouseLanes::Follow(const GameState& state) {
  if (followed_ && layout_ == state.CageOfCell) return;
  followed_ = true;
  layout_ = state.CageOfCell;
  peers_ = kLines.peers;
  log_ = kLines.log;
  houses_ = kLines.houses;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (layout_[cell] != 0) AddCage(cell, state.CageCells[layout_[cell] - 1]);
  }
}

void HouseLanes::AddCage(int cell, const HouseCells& cage) {
  for (int k = 0; k < kSide; ++k) {
    const int other = cage[k];
    houses_[cell] = houses_[cell] | CellSet::Of(other);
    const bool inLine = other == cell || peers_[cell][other] != 0;
    if (inLine) continue;
    peers_[cell][other] = kAllCandidates;
    log_[cell].second[other] = LogWords::Of(0, 0, 1 << k).second;
  }
}

}  // namespace tessel
