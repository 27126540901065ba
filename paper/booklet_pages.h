// Draws the pages of a planned booklet.
#pragma once

#include "paper/codes_ahead.h"
#include "paper/fonts.h"

namespace tessel::paper {

// `page` is 1-based. Pages are drawn in their order, because each takes its puzzles' codes.
tl::expected<void, std::string> DrawPage(cairo_t* context, const Fonts& fonts,
                                         const BookletView& booklet, CodesAhead& codes, int page);

}  // namespace tessel::paper
