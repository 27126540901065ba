// Naked and hidden subsets.
#include <algorithm>

#include "hints/pattern_search.h"

namespace tessel {

namespace {

// What the board shows in a house.
struct HouseContents {
  House house;
  Positions empty = 0;
  Mask placed = 0;  // the digits on the board
};

HouseContents ContentsOf(const GameState& state, const House& house) {
  int empty = 0;
  int placed = 0;
  for (int k = 0; k < kSide; ++k) {
    const int digit = state.PlayBoard.Board[house.cells[k]];
    if (digit == 0) {
      empty |= 1 << k;
    } else {
      placed |= BitOf(digit);
    }
  }
  return {house, static_cast<Positions>(empty), static_cast<Mask>(placed)};
}

// Deliberate: a quint is compared with 4, so that on a consistent board there is never one.
int RequiredDigits(CountSubset count) {
  return std::min(count.size, 4);
}

// Deliberate: only a candidate that all the subset's cells hold makes a naked subset useful, which
// is narrower than one that any of them holds. The triple 12, 23, 13 is never found.
std::optional<SubsetFind> NakedSubsetAt(const GameState& state, const MaskBoard& masks,
                                        const HouseContents& in, Positions positions,
                                        CountSubset count) {
  if ((positions & ~in.empty) != 0) return std::nullopt;
  int united = 0;
  int common = kAllCandidates;
  for (int rest = positions; rest != 0; rest &= rest - 1) {
    const Mask mask = masks[in.house.cells[LowestOf(static_cast<Positions>(rest))]];
    united |= mask;
    common &= mask;
  }
  if (state.BitCount[united] != RequiredDigits(count)) return std::nullopt;
  const auto shares = [&](int k) { return (masks[in.house.cells[k]] & common) != 0; };
  if (!AnyOf(Without(kAllPositions, positions), shares)) return std::nullopt;
  return SubsetFind{in.house, positions, static_cast<Mask>(united)};
}

std::optional<SubsetFind> HiddenSubsetAt(const GameState& state, const MaskBoard& masks,
                                         const HouseContents& in, Mask digits, CountSubset count) {
  if ((digits & in.placed) != 0) return std::nullopt;
  const int positions = PositionsWith(masks, in.house.cells, digits) & in.empty;
  if (state.BitCount[positions] != count.size) return std::nullopt;
  const auto hasMore = [&](int k) { return Without(masks[in.house.cells[k]], digits) != 0; };
  if (!AnyOf(static_cast<Positions>(positions), hasMore)) return std::nullopt;
  return SubsetFind{in.house, static_cast<Positions>(positions), digits};
}

}  // namespace

std::optional<SubsetFind> FindSubset(const GameState& state, const MaskBoard& masks, Subset family,
                                     CountSubset count) {
  const auto subsetAt = family == Subset::Naked ? NakedSubsetAt : HiddenSubsetAt;
  if (family == Subset::Hidden && count.size > 3) return std::nullopt;
  for (const House& house : HousesOf(state)) {
    const HouseContents contents = ContentsOf(state, house);
    for (const Mask combination : CombinationsOf(count.size)) {
      const auto find = subsetAt(state, masks, contents, combination, count);
      if (find) return find;
    }
  }
  return std::nullopt;
}

}  // namespace tessel
