// The pattern searches, one for each technique, over any board of masks. They change nothing: each
// returns the first pattern of its own fixed order, and the order differs from one to the next on
// purpose. The normal techniques report what they find, the special pass acts on it.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "core/game_state.h"
#include "core/houses.h"
#include "hints/positions.h"
#include "hints/subset.h"

namespace tessel {

// The nine rows, columns or cages.
inline std::span<const House> HousesOfKind(const Houses& houses, HouseKind kind) {
  return std::span(houses).subspan(static_cast<std::size_t>(kind) * kSide, kSide);
}

// The lowest cell with a single candidate.
std::optional<int> FindNakedSingle(const GameState& state, const MaskBoard& masks);

struct HiddenSingleFind {
  HouseKind kind = HouseKind::kRow;
  int index = 0;  // of the house, 0..8
  int cell = 0;
  int digit = 0;
};
// Digit, then rows, columns, cages.
std::optional<HiddenSingleFind> FindHiddenSingle(const GameState& state, const MaskBoard& masks);

struct PointingFind {
  int cell = 0;  // outside the cage; the digit can go from it
  int cage = 0;  // 1..9
  int digit = 0;
};
// Digit, then cage, then the lowest cell that shares a row or column with every cell of the cage
// that holds the digit.
std::optional<PointingFind> FindPointingPair(const GameState& state, const MaskBoard& masks);

struct BoxLineFind {
  House line;    // a row or a column
  int cage = 0;  // 1..9: it holds all the line's candidates, and others outside the line
  int digit = 0;
};
// All digits on rows, then all digits on columns.
std::optional<BoxLineFind> FindBoxLine(const GameState& state, const MaskBoard& masks);

struct SubsetFind {
  House house;
  Positions positions = 0;  // of the subset's cells
  Mask digits = 0;          // the subset's digits
};
// House, then combinations of positions (naked) or digits (hidden). Only useful subsets count.
std::optional<SubsetFind> FindSubset(const GameState& state, const MaskBoard& masks, Subset family,
                                     CountSubset count);

struct FishFind {
  HouseKind kind = HouseKind::kRow;
  Positions lines = 0;  // bit i: line i, 0..8
  int digit = 0;
};
// Fish of `size` lines, 2 or 3. All digits on rows, then all digits on columns.
std::optional<FishFind> FindFish(const GameState& state, const MaskBoard& masks, int size);

}  // namespace tessel
