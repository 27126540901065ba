// The outline of a set of cells, for paths of few points.
#pragma once

#include <vector>

#include "core/cage_edges.h"
#include "core/cell_set.h"
#include "paper/cell_grid.h"

namespace tessel::paper {

// A closed polygon of corners, each of which turns.
using Outline = std::vector<Corner>;

// All polygons between the cells and the others: clockwise around cells, the other way around
// holes. Cells that touch at a corner alone have polygons of their own there.
std::vector<Outline> OutlinesOf(CellSet cells);

// Adds the cells to the path, for a fill or a clip without seams between them.
void AddCells(cairo_t* context, CellSet cells, const CellGrid& grid);

}  // namespace tessel::paper
