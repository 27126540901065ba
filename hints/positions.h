// Sets of positions in a house and of cells, and the combinations that the techniques try.
#pragma once

#include <array>
#include <bit>
#include <cassert>
#include <cstddef>
#include <optional>
#include <span>

#include "core/board.h"
#include "core/cell_set.h"
#include "core/houses.h"

namespace tessel {

// Bit k stands for position k of a house, 0..8.
using Positions = Mask;
inline constexpr Positions kAllPositions = 511;

namespace positions_detail {

inline constexpr auto kSizes = [] {
  std::array<std::int8_t, 512> sizes{};
  for (std::size_t i = 1; i < sizes.size(); ++i) {
    sizes[i] = static_cast<std::int8_t>(sizes[i / 2] + static_cast<int>(i % 2));
  }
  return sizes;
}();

}  // namespace positions_detail

// The number of digits or positions in a set, from a table: not every processor that the program is
// built for can count bits.
constexpr int SizeOf(Mask set) {
  return positions_detail::kSizes[set];
}

// `k`: 0..8.
constexpr bool HasPosition(Positions positions, int k) {
  return (positions >> k & 1) != 0;
}

// The lowest position of the set for which `holds(position)` is true.
template <typename Predicate>
constexpr std::optional<int> FirstOf(Positions positions, Predicate holds) {
  for (auto rest = static_cast<unsigned>(positions); rest != 0; rest &= rest - 1) {
    const int position = std::countr_zero(rest);
    if (holds(position)) return position;
  }
  return std::nullopt;
}
// Whether there is one.
template <typename Predicate>
constexpr bool AnyOf(Positions positions, Predicate holds) {
  return FirstOf(positions, holds).has_value();
}
// The set must not be empty.
constexpr int LowestOf(Positions positions) {
  assert(positions != 0);
  return std::countr_zero(static_cast<unsigned>(positions));
}

// The positions of the house whose mask has a digit of `digits`.
inline Positions PositionsWith(const MaskBoard& masks, const HouseCells& cells, Mask digits) {
  int positions = 0;
  for (int k = 0; k < kSide; ++k) {
    if ((masks[cells[k]] & digits) != 0) positions |= 1 << k;
  }
  return static_cast<Positions>(positions);
}

// The cells of the house at these positions.
constexpr CellSet CellsAt(const House& house, Positions positions) {
  CellSet cells;
  for (auto rest = static_cast<unsigned>(positions); rest != 0; rest &= rest - 1) {
    cells = cells | CellSet::Of(house.cells[std::countr_zero(rest)]);
  }
  return cells;
}

// The cells that have the digit among their candidates.
inline CellSet CellsWith(const MaskBoard& candidates, int digit) {
  CellSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (Holds(candidates[cell], digit)) cells = cells | CellSet::Of(cell);
  }
  return cells;
}

namespace positions_detail {

// Position 0 as the highest bit, so that falling numbers are sets in lexicographic order.
constexpr Positions Mirrored(int positions) {
  int mirrored = 0;
  for (int k = 0; k < kSide; ++k) mirrored |= (positions >> k & 1) << (kSide - 1 - k);
  return static_cast<Positions>(mirrored);
}

// All choices of `size` of the nine positions, of which there are `count`.
template <std::size_t count>
constexpr std::array<Positions, count> Combinations(int size) {
  std::array<Positions, count> combinations{};
  std::size_t next = 0;
  for (int mirrored = kAllPositions; mirrored >= 0; --mirrored) {
    if (std::popcount(static_cast<unsigned>(mirrored)) == size) {
      combinations[next++] = Mirrored(mirrored);
    }
  }
  return combinations;
}

inline constexpr auto kPairs = Combinations<36>(2);
inline constexpr auto kTriples = Combinations<84>(3);
inline constexpr auto kQuads = Combinations<126>(4);
inline constexpr auto kQuints = Combinations<126>(5);
static_assert(kPairs[0] == 0b11 && kPairs[1] == 0b101 && kPairs[35] == 0b110000000);
static_assert(kQuints[125] == 0b111110000);

}  // namespace positions_detail

// Every choice of `size` (2..5) of the nine positions, in increasing lexicographic order; nothing
// for other sizes. As masks they are the choices of `size` digits, too.
constexpr std::span<const Positions> CombinationsOf(int size) {
  using namespace positions_detail;
  if (size == 2) return kPairs;
  if (size == 3) return kTriples;
  if (size == 4) return kQuads;
  if (size == 5) return kQuints;
  return {};
}

}  // namespace tessel
