#include "search/house_lanes.h"

namespace tessel {

namespace {

// For each cell, its place among the cells of its cage.
PerCell<int> PlacesInCages(const GameState& state) {
  PerCell<int> places{};
  for (const HouseCells& cage : state.CageCells) {
    for (int k = 0; k < kSide; ++k) places[cage[k]] = k;
  }
  return places;
}

}  // namespace

void HouseLanes::Follow(const GameState& state) {
  if (followed_ && layout_ == state.CageOfCell) return;
  followed_ = true;
  layout_ = state.CageOfCell;
  const PerCell<int> placeInCage = PlacesInCages(state);
  const auto naming = [&](int cell, int other) -> LogWords {
    if (other == cell) return {};
    if (RowOf(other) == RowOf(cell)) return LogWords::Of(1 << ColumnOf(other), 0, 0);
    if (ColumnOf(other) == ColumnOf(cell)) return LogWords::Of(0, 1 << RowOf(other), 0);
    const bool shareCage = layout_[cell] != 0 && layout_[other] == layout_[cell];
    return shareCage ? LogWords::Of(0, 0, 1 << placeInCage[other]) : LogWords{};
  };
  for (int cell = 0; cell < kCellCount; ++cell) {
    houses_[cell] = CellSet::Of(cell);
    for (int other = 0; other < kCellCount; ++other) {
      const LogWords words = naming(cell, other);
      log_[cell].first[other] = words.first;
      log_[cell].second[other] = words.second;
      const bool arePeers = (words.first | words.second) != 0;
      peers_[cell][other] = arePeers ? kAllCandidates : Mask{0};
      if (arePeers) houses_[cell] = houses_[cell] | CellSet::Of(other);
    }
  }
}

}  // namespace tessel
