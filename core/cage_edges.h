// Where walls stand between cells: told once, for the window and for paper.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/cell.h"
#include "core/layout.h"

namespace tessel {

enum class CellSide : std::uint8_t { kLeft, kTop, kRight, kBottom };
inline constexpr std::array kCellSides{CellSide::kLeft, CellSide::kTop, CellSide::kRight,
                                       CellSide::kBottom};

// The cell that lies beyond that side of `cell`, 0..80; none at the edge of the board.
constexpr std::optional<int> NeighbourBeyond(int cell, CellSide side) {
  const auto step = [cell](bool inside, int by) {
    return inside ? std::optional(cell + by) : std::nullopt;
  };
  switch (side) {
    case CellSide::kLeft:
      return step(ColumnOf(cell) > 0, -1);
    case CellSide::kTop:
      return step(RowOf(cell) > 0, -kSide);
    case CellSide::kRight:
      return step(ColumnOf(cell) < kSide - 1, 1);
    case CellSide::kBottom:
      return step(RowOf(cell) < kSide - 1, kSide);
  }
  return std::nullopt;
}

// Whether a wall stands on that side of the cell: all around the board, and between neighbours that
// `together(cell, neighbour)` denies.
template <typename Together>
constexpr bool IsWall(int cell, CellSide side, const Together& together) {
  const std::optional<int> neighbour = NeighbourBeyond(cell, side);
  return !neighbour || !together(cell, *neighbour);
}

// Whether the cell and its neighbour on that side lie in different cages, or the board ends there.
inline bool IsCageWall(const Layout& layout, int cell, CellSide side) {
  return IsWall(cell, side, [&](int a, int b) { return layout.CageOf(a) == layout.CageOf(b); });
}

// A corner of cells: row and column 0..9, counted in lines between the cells.
struct Corner {
  int row = 0;
  int column = 0;

  friend constexpr bool operator==(Corner, Corner) = default;
};

// A straight wall between two corners, the first above or to the left of the second.
struct WallRun {
  Corner from;
  Corner to;

  friend constexpr bool operator==(const WallRun&, const WallRun&) = default;
};

// The walls inside the board, each as long as it goes on straight: first the level ones from the
// top, then the upright ones from the left.
std::vector<WallRun> CageWallRuns(const Layout& layout);

}  // namespace tessel
