#include "paper/story_page.h"

#include <algorithm>

#include "paper/board_drawing.h"
#include "paper/text.h"

namespace tessel::paper {

namespace {

constexpr double kFooterHeight = 38.0;
constexpr double kGap = 20.0;           // between panels, and between picture and words
constexpr double kGoodPicture = 200.0;  // points: marks of 5 points
constexpr double kMinPicture = 120.0;
constexpr double kPictureShare = 0.52;  // of the width, at most
constexpr double kLeading = 1.35;

// Below the words, as large as there is room.
void DrawAfter(cairo_t* context, const Fonts& fonts, const BoardPicture& after, const Box& room) {
  const TextStyle caption{Face::kItalic, 8.0, 0.3};
  const double side = std::min(room.width, room.height - 1.5 * caption.size);
  if (side < kMinPicture / 2) return;
  const double top = room.Bottom() - side;
  DrawText(context, fonts, "After it", caption, {room.x, top - 0.5 * caption.size});
  DrawBoard(context, fonts, after, {.side = side}, {room.x, top});
}

// Returns the baseline of the last line.
double DrawParagraph(cairo_t* context, const Fonts& fonts, const std::string& paragraph,
                     const TextStyle& style, Box room) {
  double y = room.y;
  for (const std::string& line : Wrapped(fonts, paragraph, style, room.width)) {
    y += kLeading * style.size;
    DrawText(context, fonts, line, style, {room.x, y});
  }
  return y;
}

// Returns where they end.
double DrawWords(cairo_t* context, const Fonts& fonts, const Panel& panel, Box room) {
  const double size = std::clamp(room.width / 26, 7.0, 10.0);
  room.y = DrawParagraph(context, fonts, panel.heading, {Face::kBold, 1.45 * size}, room);
  Face face = Face::kBold;
  for (const std::string& paragraph : panel.paragraphs) {
    room.y += 0.45 * size;
    room.y = DrawParagraph(context, fonts, paragraph, {face, size}, room);
    face = Face::kRegular;
  }
  return room.y;
}

}  // namespace

tl::expected<StoryGrid, std::string> FitPanels(const StoryOptions& options) {
  const auto& [top, right, bottom, left] = options.margins;
  StoryGrid grid;
  grid.content = {left, top, options.page.width - left - right,
                  options.page.height - top - bottom - kFooterHeight};
  const double widest = kPictureShare * grid.content.width;
  for (const int perPage : {3, 2, 1}) {
    grid.perPage = perPage;
    grid.panel = (grid.content.height + kGap) / perPage;
    grid.picture = std::min(widest, grid.panel - kGap);
    if (grid.picture >= std::min(widest, kGoodPicture)) break;
  }
  if (grid.picture >= kMinPicture) return grid;
  return tl::unexpected(std::string("the page is too small for a board with words beside it"));
}

void DrawPanel(cairo_t* context, const Fonts& fonts, const Panel& panel, const StoryGrid& grid,
               int k) {
  const Box& content = grid.content;
  const double y = content.y + k * grid.panel;
  DrawBoard(context, fonts, panel.picture, {.side = grid.picture}, {content.x, y});
  const double x = content.x + grid.picture + kGap;
  const Box room{x, y, content.Right() - x, grid.picture};
  const double end = DrawWords(context, fonts, panel, room) + 10.0;
  if (panel.after) {
    DrawAfter(context, fonts, *panel.after, {x, end, room.width, room.Bottom() - end});
  }
}

void DrawLegend(cairo_t* context, const Fonts& fonts, const std::string& legend,
                const StoryGrid& grid) {
  const TextStyle style{Face::kItalic, 7.5, 0.25};
  DrawParagraph(context, fonts, legend, style,
                {grid.content.x, grid.content.Bottom() + 2, grid.content.width, 0});
}

void DrawFooter(cairo_t* context, const Fonts& fonts, const std::string& title, int page,
                const StoryGrid& grid) {
  const TextStyle style{Face::kRegular, 8.0, 0.35};
  const double baseline = grid.content.Bottom() + kFooterHeight;
  DrawText(context, fonts, Shortened(fonts, title, style, 0.8 * grid.content.width), style,
           {grid.content.x, baseline});
  DrawText(context, fonts, std::to_string(page), style, {grid.content.Right(), baseline},
           Align::kRight);
}

}  // namespace tessel::paper
