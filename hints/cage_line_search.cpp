// The patterns between a cage and a line: pointing pairs and box-line.
#include "core/cell_set.h"
#include "hints/pattern_search.h"

namespace tessel {

namespace {

// Each cell's row and column.
constexpr PerCell<CellSet> kLinesThrough = [] {
  PerCell<CellSet> lines;
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int k = 0; k < kSide; ++k) {
      const CellSet inRow = CellSet::Of(CellAt(RowOf(cell), k));
      const CellSet inColumn = CellSet::Of(CellAt(k, ColumnOf(cell)));
      lines[cell] = lines[cell] | inRow | inColumn;
    }
  }
  return lines;
}();

CellSet CellsWith(const MaskBoard& masks, int digit) {
  CellSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (Holds(masks[cell], digit)) cells = cells | CellSet::Of(cell);
  }
  return cells;
}

// The cells of `holders` outside the cage that share a row or column with each of the cage's
// holders; none when the cage has no holder.
CellSet PointedCells(const House& cage, CellSet holders) {
  CellSet inCage;
  for (const int cell : cage.cells) inCage = inCage | CellSet::Of(cell);
  const CellSet pointing = holders & inCage;
  if (pointing.Empty()) return {};
  CellSet pointed = holders - inCage;
  for (const int cell : cage.cells) {
    if (pointing.Contains(cell)) pointed = pointed & kLinesThrough[cell];
  }
  return pointed;
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
    const CellSet holders = CellsWith(masks, digit);
    for (const House& cage : HousesOfKind(houses, HouseKind::kCage)) {
      const CellSet pointed = PointedCells(cage, holders);
      if (!pointed.Empty()) return PointingFind{pointed.First(), cage.index + 1, digit};
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
