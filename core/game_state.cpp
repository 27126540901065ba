#include "core/game_state.h"

#include <algorithm>

#include "core/names.h"

namespace tessel {

namespace {

int CountSetBits(int value) {
  int count = 0;
  while (value > 0) {
    count += value % 2;
    value = (value - value % 2) / 2;
  }
  return count;
}

}  // namespace

void FillTables(GameState& state) {
  for (std::size_t mask = 0; mask < state.BitCount.size(); ++mask) {
    state.BitCount[mask] = static_cast<std::int16_t>(CountSetBits(static_cast<int>(mask)));
  }
  std::ranges::copy(kRowLetters, state.AxisLetters.begin());
  state.CageColour = kCageColours;
}

void SetLayout(GameState& state, const Layout& layout) {
  std::ranges::copy(layout.Cages(), state.CageOfCell.begin());
  for (int cage = 1; cage <= kSide; ++cage) state.CageCells[cage - 1] = layout.CellsOf(cage);
}

Layout LayoutOf(const GameState& state) {
  CageNumbers cages{};
  std::ranges::transform(state.CageOfCell, cages.begin(),
                         [](int cage) { return static_cast<std::uint8_t>(cage); });
  return Layout::FromCages(cages, Layout::Shape::kAny).value();
}

std::span<const std::int16_t> CageAround(const GameState& state, int cell) {
  const int cage = state.CageOfCell[cell];
  if (cage < 1 || cage > kSide) return {};
  return state.CageCells[cage - 1];
}

Rgb CageColourOf(const GameState& state, int cell) {
  const int cage = state.CageOfCell[cell];
  if (cage < 1 || cage > kSide) return kBoardColour;
  return state.CageColour[cage - 1];
}

void RemoveFromHouses(const GameState& state, int cell, int digit, MaskBoard& candidates) {
  const auto remove = [&](int peer) {
    Mask& mask = candidates[peer];
    mask = Without(mask, BitOf(digit));
  };
  for (int k = 0; k < kSide; ++k) {
    remove(CellAt(RowOf(cell), k));
    remove(CellAt(k, ColumnOf(cell)));
  }
  for (const std::int16_t peer : CageAround(state, cell)) remove(peer);
}

}  // namespace tessel
