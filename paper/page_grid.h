// The arithmetic of several boards on a page.
#pragma once

#include <optional>
#include <vector>

#include "paper/cairo_handles.h"
#include "paper/page_size.h"

namespace tessel::paper {

// What a puzzle takes beside its board, in points; 0 where there is none.
struct SlotNeeds {
  double heading = 0.0;  // height of the line above the board
  double solution =
      0.0;            // side of the small solution, never beside the board unless a code is there
  double code = 0.0;  // side of the QR code
};

struct Slot {
  Box heading;
  Box board;
  Box solution;
  Box code;
};

struct PageGrid {
  double boardSide = 0.0;
  std::vector<Slot> slots{};  // in reading order, in an area that begins at (0, 0)
};

// Arranges `count` equal slots in rows and columns with the largest boards that `area` has room
// for; none if there is no room at all.
std::optional<PageGrid> FitGrid(Size area, int count, const SlotNeeds& needs);

}  // namespace tessel::paper
