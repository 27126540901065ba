// Naked and hidden singles.
#include "hints/pattern_search.h"

namespace tessel {

std::optional<int> FindNakedSingle(const GameState& state, const MaskBoard& masks) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (state.BitCount[masks[cell]] == 1) return cell;
  }
  return std::nullopt;
}

std::optional<HiddenSingleFind> FindHiddenSingle(const GameState& state, const MaskBoard& masks) {
  const Houses houses = HousesOf(state);
  for (int digit = 1; digit <= kSide; ++digit) {
    for (const House& house : houses) {
      const Positions places = PositionsWith(masks, house.cells, BitOf(digit));
      if (state.BitCount[places] != 1) continue;
      return HiddenSingleFind{house.kind, house.index, house.cells[LowestOf(places)], digit};
    }
  }
  return std::nullopt;
}

}  // namespace tessel
