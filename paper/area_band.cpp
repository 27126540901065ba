#include "paper/area_band.h"

#include "core/cage_edges.h"
#include "paper/cell_outline.h"

namespace tessel::paper {

namespace {

void AddEdge(cairo_t* context, const Box& cell, CellSide side) {
  const bool upright = side == CellSide::kLeft || side == CellSide::kRight;
  const double x = side == CellSide::kRight ? cell.Right() : cell.x;
  const double y = side == CellSide::kBottom ? cell.Bottom() : cell.y;
  cairo_move_to(context, x, y);
  cairo_line_to(context, upright ? x : cell.Right(), upright ? cell.Bottom() : y);
}

}  // namespace

// The line is drawn on the edge, twice as wide as wanted; the clip leaves the inner half.
void DrawBand(cairo_t* context, CellSet area, const CellGrid& grid, const BandStyle& style) {
  const auto together = [&](int a, int b) { return area.Contains(a) == area.Contains(b); };
  cairo_save(context);
  AddCells(context, area, grid);
  cairo_clip(context);
  ForEach(area, [&](int cell) {
    for (const CellSide side : kCellSides) {
      if (IsWall(cell, side, together)) AddEdge(context, grid.BoxOf(cell), side);
    }
  });
  // Each edge begins and ends with half a dash, so that the dashes meet at corners.
  const double dash = grid.side / 4;
  if (style.dashed) cairo_set_dash(context, &dash, 1, dash / 2);
  cairo_set_line_cap(context, style.dashed ? CAIRO_LINE_CAP_BUTT : CAIRO_LINE_CAP_SQUARE);
  cairo_set_line_width(context, style.wall + 2 * style.width);
  cairo_set_source_rgb(context, 0.42, 0.55, 0.85);
  cairo_stroke(context);
  cairo_restore(context);
}

}  // namespace tessel::paper
