// A set of cells as 81 bits, for flood fills that take a whole board at a time.
#pragma once

#include <bit>
#include <cstdint>

#include "core/cell.h"

namespace tessel {

// Cells 0..63 are the bits of `low`, cells 64..80 the lowest bits of `high`.
struct CellSet {
  std::uint64_t low = 0;
  std::uint64_t high = 0;

  static constexpr CellSet Of(int cell) {
    return cell < 64 ? CellSet{std::uint64_t{1} << cell, 0}
                     : CellSet{0, std::uint64_t{1} << (cell - 64)};
  }
  static constexpr CellSet All() { return {~std::uint64_t{0}, (std::uint64_t{1} << 17) - 1}; }

  constexpr bool Empty() const { return (low | high) == 0; }
  constexpr bool Contains(int cell) const { return !(*this & Of(cell)).Empty(); }
  constexpr int Count() const { return std::popcount(low) + std::popcount(high); }
  // The lowest-numbered cell; the set must not be empty.
  constexpr int First() const {
    return low != 0 ? std::countr_zero(low) : 64 + std::countr_zero(high);
  }

  // The cells `by` numbers further on or back, 1..63; cells beyond 80 are kept and must be masked.
  constexpr CellSet Later(int by) const { return {low << by, high << by | low >> (64 - by)}; }
  constexpr CellSet Earlier(int by) const { return {low >> by | high << (64 - by), high >> by}; }

  friend constexpr CellSet operator&(CellSet a, CellSet b) {
    return {a.low & b.low, a.high & b.high};
  }
  friend constexpr CellSet operator|(CellSet a, CellSet b) {
    return {a.low | b.low, a.high | b.high};
  }
  friend constexpr CellSet operator-(CellSet a, CellSet b) {
    return {a.low & ~b.low, a.high & ~b.high};
  }
  friend constexpr bool operator==(CellSet, CellSet) = default;
};

namespace cell_set_detail {
constexpr CellSet Column(int column) {
  CellSet cells;
  for (int row = 0; row < kSide; ++row) cells = cells | CellSet::Of(CellAt(row, column));
  return cells;
}
inline constexpr CellSet kNotFirstColumn = CellSet::All() - Column(0);
inline constexpr CellSet kNotLastColumn = CellSet::All() - Column(kSide - 1);
}  // namespace cell_set_detail

// The cells that touch a cell of `cells` by a side; may contain cells of `cells` themselves.
constexpr CellSet NeighboursOf(CellSet cells) {
  using namespace cell_set_detail;
  const CellSet across =
      ((cells & kNotLastColumn).Later(1)) | ((cells & kNotFirstColumn).Earlier(1));
  return (across | cells.Later(kSide) | cells.Earlier(kSide)) & CellSet::All();
}

// The connected cells of `area` around its lowest-numbered cell; empty when `area` is.
constexpr CellSet FirstRegionOf(CellSet area) {
  if (area.Empty()) return area;
  CellSet region = CellSet::Of(area.First());
  while (true) {
    const CellSet grown = region | (NeighboursOf(region) & area);
    if (grown == region) return region;
    region = grown;
  }
}

}  // namespace tessel
