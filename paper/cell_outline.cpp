#include "paper/cell_outline.h"

#include <array>

namespace tessel::paper {

namespace {

constexpr int kCorners = kSide + 1;  // on a line
constexpr int kSides = static_cast<int>(kCellSides.size());

// By the side of a cell that lies at the right hand: where on the cell its edge begins, and what
// leads along it. The next side is a turn to the right.
constexpr std::array<int, kSides> kBegin{kCorners, 0, 1, kCorners + 1};
constexpr std::array<int, kSides> kStep{-kCorners, 1, kCorners, -1};

class Tracer {
 public:
  explicit Tracer(CellSet cells) {
    const auto together = [&](int, int neighbour) { return cells.Contains(neighbour); };
    ForEach(cells, [&](int cell) {
      const int corner = RowOf(cell) * kCorners + ColumnOf(cell);
      for (int side = 0; side < kSides; ++side) {
        if (IsWall(cell, kCellSides[side], together)) leaving_[corner + kBegin[side]][side] = true;
      }
    });
  }

  std::vector<Outline> Outlines() {
    std::vector<Outline> outlines;
    for (int corner = 0; corner < kCorners * kCorners; ++corner) {
      for (int side = 0; side < kSides; ++side) {
        if (leaving_[corner][side]) outlines.push_back(Traced(corner, side));
      }
    }
    return outlines;
  }

 private:
  // From the first corner that is left, so that a turn is there.
  Outline Traced(int first, int side) {
    Outline outline;
    int turn = 1;
    int corner = first;
    do {
      if (turn != 0) outline.push_back({corner / kCorners, corner % kCorners});
      leaving_[corner][side] = false;
      corner += kStep[side];
      turn = TurnAt(corner, side);
      side = (side + turn) % kSides;
    } while (corner != first);
    return outline;
  }

  // In quarters to the right: that way first, then straight on, then to the left.
  int TurnAt(int corner, int side) const {
    for (const int turn : {1, 0}) {
      if (leaving_[corner][(side + turn) % kSides]) return turn;
    }
    return kSides - 1;
  }

  std::array<std::array<bool, kSides>, kCorners * kCorners> leaving_{};
};

}  // namespace

std::vector<Outline> OutlinesOf(CellSet cells) {
  return Tracer(cells).Outlines();
}

void AddCells(cairo_t* context, CellSet cells, const CellGrid& grid) {
  for (const Outline& outline : OutlinesOf(cells)) {
    cairo_new_sub_path(context);
    for (const Corner& corner : outline) {
      cairo_line_to(context, grid.origin.x + corner.column * grid.side,
                    grid.origin.y + corner.row * grid.side);
    }
    cairo_close_path(context);
  }
}

}  // namespace tessel::paper
