// A set of cells as 81 bits, for steps that take a whole board at a time.
#pragma once

#include <bit>
#include <cassert>
#include <cstdint>

#include "core/cell.h"

namespace tessel {

// Whole rows in each word, so that steps to the left and right stay inside one: `upper` holds rows
// 0..4, cells 0..44, from its lowest bit on; `lower` rows 5..8, cells 45..80.
struct CellSet {
  std::uint64_t upper = 0;
  std::uint64_t lower = 0;

  static constexpr int kUpperCells = 45;

  // The cell 0..80 alone.
  static constexpr CellSet Of(int cell) {
    return cell < kUpperCells ? CellSet{std::uint64_t{1} << cell, 0}
                              : CellSet{0, std::uint64_t{1} << (cell - kUpperCells)};
  }

  constexpr bool Empty() const { return (upper | lower) == 0; }
  constexpr bool Contains(int cell) const { return !(*this & Of(cell)).Empty(); }
  constexpr int Count() const { return std::popcount(upper) + std::popcount(lower); }
  // The lowest-numbered cell; the set must not be empty.
  constexpr int First() const {
    assert(!Empty());
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

// Calls `visit` with each cell, in increasing order.
template <typename Visit>
constexpr void ForEach(CellSet cells, const Visit& visit) {
  for (std::uint64_t left = cells.upper; left != 0; left &= left - 1) {
    visit(std::countr_zero(left));
  }
  for (std::uint64_t left = cells.lower; left != 0; left &= left - 1) {
    visit(CellSet::kUpperCells + std::countr_zero(left));
  }
}

// The cells to the left and right of the cells of `cells`, and those themselves.
constexpr CellSet DilateHorizontally(CellSet cells) {
  constexpr std::uint64_t firstColumn = 0x1008040201;  // of five rows
  constexpr std::uint64_t notFirst = ~firstColumn;
  constexpr std::uint64_t notLast = ~(firstColumn << (kSide - 1));
  const auto spread = [](std::uint64_t rows) {
    return rows | (rows & notLast) << 1 | (rows & notFirst) >> 1;
  };
  return {spread(cells.upper), spread(cells.lower)};
}

// The cells above and below the cells of `cells`, and those themselves; may go beyond the board.
constexpr CellSet DilateVertically(CellSet cells) {
  constexpr int seam = CellSet::kUpperCells - kSide;
  return {cells.upper | cells.upper << kSide | cells.upper >> kSide | cells.lower << seam,
          cells.lower | cells.lower << kSide | cells.lower >> kSide | cells.upper >> seam};
}

// The cells outside `cells` that touch one of them by a side.
constexpr CellSet NeighboursOf(CellSet cells) {
  return ((DilateHorizontally(cells) | DilateVertically(cells)) & kAllCells) - cells;
}

// The connected cells of `area` around its lowest-numbered cell; empty when `area` is.
constexpr CellSet FirstRegionOf(CellSet area) {
  if (area.Empty()) return area;
  CellSet region = CellSet::Of(area.First());
  while (true) {
    const CellSet wider = DilateHorizontally(region) & area;
    const CellSet grown = DilateVertically(wider) & area;
    if (grown == region) return region;
    region = grown;
  }
}

}  // namespace tessel
