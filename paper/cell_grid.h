// Where a board's cells are on the page.
#pragma once

#include "core/cell.h"
#include "paper/cairo_handles.h"

namespace tessel::paper {

// In points.
struct CellGrid {
  Point origin;       // the corner of the first cell
  double side = 0.0;  // of a cell

  Box BoxOf(int cell) const {
    return {origin.x + ColumnOf(cell) * side, origin.y + RowOf(cell) * side, side, side};
  }
  Point CentreOf(int cell) const {
    return {origin.x + (ColumnOf(cell) + 0.5) * side, origin.y + (RowOf(cell) + 0.5) * side};
  }
};

}  // namespace tessel::paper
