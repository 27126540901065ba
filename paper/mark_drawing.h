// Pencil marks on a drawn board.
#pragma once

#include "paper/board_picture.h"
#include "paper/fonts.h"

namespace tessel::paper {

// Where a board's cells are on the page, in points.
struct CellGrid {
  Point origin;       // the corner of the first cell
  double side = 0.0;  // of a cell
};

// Draws the picture's marks, rings those that are reasons and crosses out those that are struck.
void DrawMarks(cairo_t* context, const Fonts& fonts, const BoardPicture& picture,
               const CellGrid& grid);

}  // namespace tessel::paper
