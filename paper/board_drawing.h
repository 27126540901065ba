// The one painter of boards: for PDF, SVG and PNG, for booklets and explanations.
#pragma once

#include "paper/board_picture.h"
#include "paper/board_style.h"
#include "paper/fonts.h"

namespace tessel::paper {

// The sides of cells on a board drawn in that style.
double CellSideOf(const BoardStyle& style, bool captions);

// Draws the picture with its upper left corner at `corner`. Nothing depends on colours: walls are
// told by thickness, marks by rings and crosses.
void DrawBoard(cairo_t* context, const Fonts& fonts, const BoardPicture& picture,
               const BoardStyle& style, Point corner);

}  // namespace tessel::paper
