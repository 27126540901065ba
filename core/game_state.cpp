#include "core/game_state.h"

#include <algorithm>

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

int CellOf(const GameState& state, HouseKind kind, int index, int k) {
  switch (kind) {
    case HouseKind::kRow:
      return CellAt(index, k);
    case HouseKind::kColumn:
      return CellAt(k, index);
    case HouseKind::kCage:
      return state.CageCells[index][k];
  }
  return 0;
}

}  // namespace

void FillTables(GameState& state) {
  for (std::size_t mask = 0; mask < state.BitCount.size(); ++mask) {
    state.BitCount[mask] = static_cast<std::int16_t>(CountSetBits(static_cast<int>(mask)));
  }
  for (std::size_t row = 0; row < kSide; ++row) {
    state.AxisLetters[row] = static_cast<std::int16_t>('A' + row);
  }
  ++state.AxisLetters[kSide - 1];  // deliberate: the letter I is skipped, the ninth row is J
  state.CageColour = kCageColours;
}

void RebuildCageCells(GameState& state) {
  std::array<std::size_t, kSide> cellCount{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const auto cage = state.CageOfCell[cell] - 1;
    state.CageCells[cage][cellCount[cage]++] = static_cast<std::int16_t>(cell);
  }
}

std::span<const std::int16_t> CageAround(const GameState& state, int cell) {
  const int cage = state.CageOfCell[cell];
  if (cage < 1 || cage > kSide) return {};
  return state.CageCells[cage - 1];
}

Layout LayoutOf(const GameState& state) {
  CageNumbers cages{};
  std::ranges::transform(state.CageOfCell, cages.begin(),
                         [](std::int16_t cage) { return static_cast<std::uint8_t>(cage); });
  return Layout::FromCages(cages, Layout::Shape::kAny).value();
}

Houses HousesOf(const GameState& state) {
  Houses houses;
  std::size_t next = 0;
  for (const HouseKind kind : kHouseKinds) {
    for (int index = 0; index < kSide; ++index) {
      House& house = houses[next++];
      house.kind = kind;
      house.index = index;
      for (int k = 0; k < kSide; ++k) {
        house.cells[k] = static_cast<std::int16_t>(CellOf(state, kind, index, k));
      }
    }
  }
  return houses;
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

std::string CellName(const GameState& state, int cell) {
  return RowName(state, RowOf(cell)) + ColumnName(ColumnOf(cell));
}

std::string RowName(const GameState& state, int row) {
  return {static_cast<char>(state.AxisLetters[row])};
}

std::string ColumnName(int column) {
  return {static_cast<char>('1' + column)};
}

}  // namespace tessel
