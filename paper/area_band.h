// The band that shows which house or area is meant.
#pragma once

#include "core/cell_set.h"
#include "paper/cell_grid.h"

namespace tessel::paper {

struct BandStyle {
  double width = 1.0;  // points that are seen beside a wall
  double wall = 1.0;   // thickness of the wall that will cover the outer part
  bool dashed = false;
};

// Draws along the inside of the area's edges.
void DrawBand(cairo_t* context, CellSet area, const CellGrid& grid, const BandStyle& style);

}  // namespace tessel::paper
