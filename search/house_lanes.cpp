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
  if (followed_ && layout_ == state.CageOfCell) return;
  followed_ = true;
  layout_ = state.CageOfCell;
  cages_ = {};
  for (int cage = 1; cage <= kSide; ++cage) {
    for (int k = 0; k < kSide; ++k) {
      const int cell = state.CageCells[cage - 1][k];
      if (layout_[cell] == cage) cages_[cage][cell] = static_cast<std::int16_t>(1 << k);
    }
  }
  for (int cell = 0; cell < kCellCount; ++cell) FindPeers(cell);
}

void HouseLanes::FindPeers(int cell) {
  for (int other = 0; other < kLaneCount; ++other) {
    const int shared = Row(cell)[other] | Column(cell)[other] | Cage(cell)[other];
    peers_[cell][other] = shared != 0 ? kAllCandidates : Mask{0};
  }
  peers_[cell][cell] = 0;
}

}  // namespace tessel
