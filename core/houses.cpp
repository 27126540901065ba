#include "core/houses.h"

namespace tessel {

namespace {

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

}  // namespace tessel
