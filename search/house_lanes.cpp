#include "search/house_lanes.h"

namespace tessel {

void HouseLanes::Follow(const GameState& state) {
  if (followed_ && layout_ == state.CageOfCell) return;
  followed_ = true;
  layout_ = state.CageOfCell;
  for (const HouseCells& cage : state.CageCells) {
    for (int k = 0; k < kSide; ++k) cageIndex_[cage[k]] = k;
  }
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int other = 0; other < kCellCount; ++other) {
      const LogWords words = Naming(cell, other);
      log_[cell].first[other] = words.first;
      log_[cell].second[other] = words.second;
      peers_[cell][other] = (words.first | words.second) != 0 ? kAllCandidates : Mask{0};
    }
  }
}

LogWords HouseLanes::Naming(int cell, int other) const {
  if (other == cell) return {};
  if (RowOf(other) == RowOf(cell)) return LogWords::Of(1 << ColumnOf(other), 0, 0);
  if (ColumnOf(other) == ColumnOf(cell)) return LogWords::Of(0, 1 << RowOf(other), 0);
  const bool shareCage = layout_[cell] != 0 && layout_[other] == layout_[cell];
  return shareCage ? LogWords::Of(0, 0, 1 << cageIndex_[other]) : LogWords{};
}

}  // namespace tessel
