// The patterns between a cage and a line: pointing pairs and box-line.
#include "hints/pattern_search.h"

namespace tessel {

namespace {

bool ShareLine(int cell, int other) {
  return RowOf(cell) == RowOf(other) || ColumnOf(cell) == ColumnOf(other);
}

// The lowest cell outside the cage from which the cage's cells at `places` point the digit away.
std::optional<int> FindPointedCell(const GameState& state, const MaskBoard& masks,
                                   const House& cage, Positions places, int digit) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (state.CageOfCell[cell] == cage.index + 1 || !Holds(masks[cell], digit)) continue;
    const auto hidden = [&](int k) { return !ShareLine(cell, cage.cells[k]); };
    if (!AnyOf(places, hidden)) return cell;
  }
  return std::nullopt;
}

// The cage 1..9 that all the line's cells at `places` lie in.
std::optional<int> CommonCage(const GameState& state, const House& line, Positions places) {
  if (places == 0) return std::nullopt;
  const int cage = state.CageOfCell[line.cells[LowestOf(places)]];
  const auto elsewhere = [&](int k) { return state.CageOfCell[line.cells[k]] != cage; };
  if (cage == 0 || AnyOf(places, elsewhere)) return std::nullopt;
  return cage;
}

}  // namespace

std::optional<PointingFind> FindPointingPair(const GameState& state, const MaskBoard& masks) {
  const Houses houses = HousesOf(state);
  for (int digit = 1; digit <= kSide; ++digit) {
    for (const House& cage : HousesOfKind(houses, HouseKind::kCage)) {
      const Positions places = PositionsWith(masks, cage.cells, BitOf(digit));
      if (places == 0) continue;
      const auto cell = FindPointedCell(state, masks, cage, places, digit);
      if (cell) return PointingFind{*cell, cage.index + 1, digit};
    }
  }
  return std::nullopt;
}

std::optional<BoxLineFind> FindBoxLine(const GameState& state, const MaskBoard& masks) {
  const Houses houses = HousesOf(state);
  for (const HouseKind kind : {HouseKind::kRow, HouseKind::kColumn}) {
    for (int digit = 1; digit <= kSide; ++digit) {
      for (const House& line : HousesOfKind(houses, kind)) {
        const Positions places = PositionsWith(masks, line.cells, BitOf(digit));
        const auto cage = CommonCage(state, line, places);
        if (!cage) continue;
        const Positions inCage = PositionsWith(masks, state.CageCells[*cage - 1], BitOf(digit));
        if (state.BitCount[inCage] > state.BitCount[places]) return BoxLineFind{line, *cage, digit};
      }
    }
  }
  return std::nullopt;
}

}  // namespace tessel
