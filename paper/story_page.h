// The arithmetic of panels on pages, and how one is drawn.
#pragma once

#include "paper/cairo_handles.h"
#include "paper/fonts.h"
#include "paper/story.h"

namespace tessel::paper {

struct StoryGrid {
  Box content;  // of a page, without header and footer
  int perPage = 1;
  double panel = 0.0;    // height of a panel, with the gap below it
  double picture = 0.0;  // side of the large picture
};

// As many panels a page as can be read well; the error says that there is no room for one.
tl::expected<StoryGrid, std::string> FitPanels(const StoryOptions& options);

// In the k-th place of the page, from the top.
void DrawPanel(cairo_t* context, const Fonts& fonts, const Panel& panel, const StoryGrid& grid,
               int k);
// Below the content: the legend, small, or the number of the page.
void DrawLegend(cairo_t* context, const Fonts& fonts, const std::string& legend,
                const StoryGrid& grid);
void DrawFooter(cairo_t* context, const Fonts& fonts, const std::string& title, int page,
                const StoryGrid& grid);

}  // namespace tessel::paper
