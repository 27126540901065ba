// X-Wing and SwordFish: one digit, `size` lines.
#include "hints/pattern_search.h"

namespace tessel {

namespace {

using LineMasks = std::array<Positions, kSide>;  // where each of nine parallel lines holds a digit

LineMasks LineMasksOf(const MaskBoard& masks, std::span<const House> lines, int digit) {
  LineMasks lineMasks{};
  for (const House& line : lines) {
    lineMasks[line.index] = PositionsWith(masks, line.cells, BitOf(digit));
  }
  return lineMasks;
}

// Deliberate: the strict form only. Every line of the fish holds the digit in exactly the same
// `size` places, for three lines too.
bool IsUsefulFish(const GameState& state, const LineMasks& lineMasks, Positions lines, int size) {
  const Positions places = lineMasks[LowestOf(lines)];
  const auto differs = [&](int line) { return lineMasks[line] != places; };
  const auto meets = [&](int line) { return (lineMasks[line] & places) != 0; };
  return state.BitCount[places] == size && !AnyOf(lines, differs) &&
         AnyOf(Without(kAllPositions, lines), meets);
}

}  // namespace

std::optional<FishFind> FindFish(const GameState& state, const MaskBoard& masks, int size) {
  const Houses houses = HousesOf(state);
  for (const HouseKind kind : {HouseKind::kRow, HouseKind::kColumn}) {
    for (int digit = 1; digit <= kSide; ++digit) {
      const LineMasks lineMasks = LineMasksOf(masks, HousesOfKind(houses, kind), digit);
      for (const Positions lines : CombinationsOf(size)) {
        if (IsUsefulFish(state, lineMasks, lines, size)) return FishFind{kind, lines, digit};
      }
    }
  }
  return std::nullopt;
}

}  // namespace tessel
