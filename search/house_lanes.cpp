#include "search/house_lanes.h"

namespace tessel {

namespace {

// A window of kLaneCount lanes slides over a single set one.
constexpr std::array<std::int16_t, 2 * kLaneCount> kOneLane = [] {
  std::array<std::int16_t, 2 * kLaneCount> lanes{};
  lanes[kLaneCount] = -1;
  return lanes;
}();

}  // namespace

const std::int16_t* OwnLane(int cell) {
  return kOneLane.data() + (kLaneCount - cell);
}

HouseLanes::HouseLanes() {
  for (int cell = 0; cell < kCellCount; ++cell) {
    rows_[RowOf(cell)][cell] = static_cast<std::int16_t>(1 << ColumnOf(cell));
    columns_[ColumnOf(cell)][cell] = static_cast<std::int16_t>(1 << RowOf(cell));
  }
}

void HouseLanes::Follow(const GameState& state) {
  if (layout_ == state.CageOfCell) return;
  layout_ = state.CageOfCell;
  for (int cell = 0; cell < kCellCount; ++cell) {
    cages_[cell].fill(0);
    int k = 0;
    for (const int peer : CageAround(state, cell)) {
      const bool logged = RowOf(peer) == RowOf(cell) || ColumnOf(peer) == ColumnOf(cell);
      if (!logged) cages_[cell][peer] = static_cast<std::int16_t>(1 << k);
      ++k;
    }
  }
}

}  // namespace tessel
