// Draws the pages of a planned booklet.
#pragma once

#include "paper/booklet_plan.h"
#include "paper/fonts.h"

namespace tessel::paper {

struct BookletView {
  std::span<const BookletPuzzle> puzzles;
  const BookletOptions& options;
  const BookletPlan& plan;
};

// `page` is 1-based.
tl::expected<void, std::string> DrawPage(cairo_t* context, const Fonts& fonts,
                                         const BookletView& booklet, int page);

}  // namespace tessel::paper
