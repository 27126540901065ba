// Pencil marks on a drawn board.
#pragma once

#include "paper/board_picture.h"
#include "paper/cell_grid.h"
#include "paper/fonts.h"

namespace tessel::paper {

// Draws the picture's marks, rings those that are reasons and crosses out those that are struck.
void DrawMarks(cairo_t* context, const Fonts& fonts, const BoardPicture& picture,
               const CellGrid& grid);

}  // namespace tessel::paper
