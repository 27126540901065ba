// A layout: nine cages of nine cells, with all that follows from them. Made whole or not at all.
#pragma once

#include <cassert>
#include <span>
#include <string>
#include <tl/expected.hpp>

#include "core/board.h"
#include "core/cell_set.h"
#include "core/houses.h"

namespace tessel {

struct LayoutError {
  enum class Fault : std::uint8_t { kNumberOutOfRange, kNotNineCells, kNotConnected };

  Fault fault = Fault::kNotNineCells;
  int cage = 0;         // the cage at fault, the lowest if there are several; a number out of range
  int cell = 0;         // a cell of it (kNotNineCells of an empty cage: 0)
  int size = 0;         // kNotNineCells: the number of its cells
  std::string message;  // "cage 3 has 8 cells instead of 9"
};

class Layout {
 public:
  enum class Shape : std::uint8_t { kConnected, kAny };

  // `cages`: the cage 1..9 of each cell. With Shape::kAny a cage may lie in several parts.
  static tl::expected<Layout, LayoutError> FromCages(const CageNumbers& cages,
                                                     Shape shape = Shape::kConnected);
  // The nine 3x3 boxes, numbered row by row.
  static const Layout& Regular();

  // `cell`: 0..80.
  int CageOf(int cell) const { return cages_[cell]; }  // 1..9
  const CageNumbers& Cages() const { return cages_; }
  // The cells of `cage` 1..9, in increasing order.
  const HouseCells& CellsOf(int cage) const {
    assert(cage >= 1 && cage <= kSide);
    return houses_[kFirstCage + cage - 1].cells;
  }

  const Houses& AllHouses() const { return houses_; }
  // The nine rows, columns or cages.
  std::span<const House, kSide> HousesOf(HouseKind kind) const {
    return std::span<const House, kSide>(&houses_[static_cast<std::size_t>(kind) * kSide], kSide);
  }
  // The other cells that share a house with the cell: 20 to 24 where cages are connected.
  CellSet PeersOf(int cell) const { return peers_[cell]; }

  friend bool operator==(const Layout& a, const Layout& b) { return a.cages_ == b.cages_; }

 private:
  explicit Layout(const CageNumbers& cages);

  static constexpr int kFirstCage = 2 * kSide;

  CageNumbers cages_;
  Houses houses_;
  PerCell<CellSet> peers_;
};

}  // namespace tessel
