// One puzzle, or one solution, at its place on a page.
#pragma once

#include "paper/booklet.h"
#include "paper/fonts.h"
#include "paper/page_grid.h"

namespace tessel::paper {

struct SlotContext {
  cairo_t* context;
  const Fonts& fonts;
  const BookletOptions& options;
  bool linked = true;  // the booklet has this puzzle's solution on another page
  double headingSize = 10.0;
};

// All but the code.
void DrawPuzzleSlot(const SlotContext& in, const BookletPuzzle& puzzle, int number,
                    const Slot& slot);
// The puzzle must have a solution.
void DrawSolutionSlot(const SlotContext& in, const BookletPuzzle& puzzle, int number,
                      const Slot& slot);

}  // namespace tessel::paper
