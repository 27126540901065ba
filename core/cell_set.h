// A set of cells as 81 bits, for flood fills that take a whole board at a time.
#pragma once

#include <bit>
#include <cstdint>

#include "core/cell.h"

namespace tessel {

// Whole rows in each word, so that steps to the left and right stay inside one: `upper` holds rows
// 0..4, cells 0..44, from its lowest bit on; `lower` rows 5..8, cells 45..80.
struct CellSet {
  std::uint64_t upper = 0;
  std::uint64_t lower = 0;

  static constexpr int kUpperCells = 45;

  static constexpr CellSet Of(int cell) {
    return cell < kUpperCells ? CellSet{std::uint64_t{1} << cell, 0}
                              : CellSet{0, std::uint64_t{1} << (cell - kUpperCells)};
  }

  constexpr bool Empty() const { return (upper | lower) == 0; }
  constexpr bool Contains(int cell) const { return !(*this & Of(cell)).Empty(); }
  constexpr int Count() const { return std::popcount(upper) + std::popcount(lower); }
  // The lowest-numbered cell; the set must not be empty.
  constexpr int First() const {
    return upper != 0 ? std::countr_zero(upper) : kUpperCells + std::countr_zero(lower);
  }

  friend constexpr CellSet operator&(CellSet a, CellSet b) {
    return {a.upper & b.upper, a.lower & b.lower};
  }
  friend constexpr CellSet operator|(CellSet a, CellSet b) {
    return {a.upper | b.upper, a.lower | b.lower};
  }
  friend constexpr CellSet operator-(CellSet a, CellSet b) {
    return {a.upper & ~b.upper, a.lower & ~b.lower};
  }
  friend constexpr bool operator==(CellSet, CellSet) = default;
};

inline constexpr CellSet kAllCells{(std::uint64_t{1} << 45) - 1, (std::uint64_t{1} << 36) - 1};

// The cells of `area` that touch a cell of `cells` by a side; they may lie in `cells` themselves.
constexpr CellSet NeighboursOf(CellSet cells, CellSet area = kAllCells) {
  constexpr std::uint64_t firstColumn = 0x1008040201;  // of five rows
  constexpr std::uint64_t notFirst = ~firstColumn;
  constexpr std::uint64_t notLast = ~(firstColumn << (kSide - 1));
  const auto beside = [](std::uint64_t rows) {
    return (rows & notLast) << 1 | (rows & notFirst) >> 1 | rows << kSide | rows >> kSide;
  };
  const CellSet across{cells.lower << (CellSet::kUpperCells - kSide),
                       cells.upper >> (CellSet::kUpperCells - kSide)};
  return (CellSet{beside(cells.upper), beside(cells.lower)} | across) & area;
}

// The connected cells of `area` around its lowest-numbered cell; empty when `area` is.
constexpr CellSet FirstRegionOf(CellSet area) {
  if (area.Empty()) return area;
  CellSet region = CellSet::Of(area.First());
  while (true) {
    const CellSet grown = region | NeighboursOf(region, area);
    const CellSet grownTwice = grown | NeighboursOf(grown, area);
    if (grownTwice == grown) return grown;
    region = grownTwice;
  }
}

}  // namespace tessel
