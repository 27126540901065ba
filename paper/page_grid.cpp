#include "paper/page_grid.h"

#include <algorithm>

namespace tessel::paper {

namespace {

constexpr double kPad = 9.0;  // between a board and what stands under or beside it
constexpr double kMaxGap = 44.0;

// More boards a page, closer together.
double LeastGap(int count) {
  return std::max(10.0, 30.0 - 2.0 * count);
}

// The size of one slot's content, and where its extras stand.
struct Content {
  double boardSide = 0.0;
  bool beside = false;
  Size size;
};

// The extras stand in a row under the board, or one above the other at its right.
std::optional<Content> FitContent(Size room, const SlotNeeds& needs, bool beside) {
  const double pads = (needs.solution > 0 ? kPad : 0.0) + (needs.code > 0 ? kPad : 0.0);
  const double strip = pads > 0 ? std::max(needs.solution, needs.code) + kPad : 0.0;
  const double length = pads > 0 ? needs.solution + needs.code + pads - kPad : 0.0;
  const double height = room.height - needs.heading;
  const double side =
      beside ? std::min(room.width - strip, height) : std::min(room.width, height - strip);
  if (side <= 0 || length > (beside ? height : room.width)) return std::nullopt;
  const Size size = beside ? Size{side + strip, needs.heading + std::max(side, length)}
                           : Size{std::max(side, length), needs.heading + side + strip};
  return Content{side, beside, size};
}

Slot PlaceSlot(Point at, const Content& content, const SlotNeeds& needs) {
  const double side = content.boardSide;
  Slot slot;
  slot.heading = {at.x, at.y, side, needs.heading};
  slot.board = {at.x, at.y + needs.heading, side, side};
  if (content.beside) {
    const double x = slot.board.Right() + kPad;
    slot.code = {x, slot.board.y, needs.code, needs.code};
    const double lowest = std::max(slot.board.Bottom() - needs.solution, slot.code.Bottom() + kPad);
    slot.solution = {x, lowest, needs.solution, needs.solution};
    return slot;
  }
  const double y = slot.board.Bottom() + kPad;
  const bool both = needs.code > 0 && needs.solution > 0;
  const double solutionX = both ? at.x : at.x + (side - needs.solution) / 2;
  slot.solution = {solutionX, y, needs.solution, needs.solution};
  const double codeX = at.x + content.size.width - needs.code;
  slot.code = {both ? codeX : at.x + (side - needs.code) / 2, y, needs.code, needs.code};
  return slot;
}

// Where `count` pieces of `length` begin in a room of `space`: spread, but not too far apart.
struct Spread {
  double first = 0.0;
  double step = 0.0;
};
Spread SpreadOut(double space, int count, double length, double shareBefore) {
  const double gap = count > 1 ? std::min(kMaxGap, (space - count * length) / (count - 1)) : 0.0;
  const double left = space - count * length - (count - 1) * gap;
  return {shareBefore * left, length + gap};
}

struct Arrangement {
  int columns = 0;
  Content content;
};

std::optional<Arrangement> BestArrangement(Size area, int count, const SlotNeeds& needs) {
  std::optional<Arrangement> best;
  const double gap = LeastGap(count);
  for (int columns = 1; columns <= count; ++columns) {
    if (count % columns != 0) continue;
    const int rows = count / columns;
    const Size room{(area.width - (columns - 1) * gap) / columns,
                    (area.height - (rows - 1) * gap) / rows};
    for (const bool beside : {false, true}) {
      if (beside && needs.code <= 0) continue;
      const std::optional<Content> content = FitContent(room, needs, beside);
      if (!content || (best && content->boardSide <= best->content.boardSide)) continue;
      best = Arrangement{columns, *content};
    }
  }
  return best;
}

}  // namespace

std::optional<PageGrid> FitGrid(Size area, int count, const SlotNeeds& needs) {
  const std::optional<Arrangement> best = BestArrangement(area, count, needs);
  if (!best) return std::nullopt;
  const auto& [columns, content] = *best;
  const Spread across = SpreadOut(area.width, columns, content.size.width, 0.5);
  // A little above the middle looks like the middle.
  const Spread down = SpreadOut(area.height, count / columns, content.size.height, 0.45);
  PageGrid grid{.boardSide = content.boardSide, .slots = {}};
  for (int k = 0; k < count; ++k) {
    const Point at{across.first + k % columns * across.step, down.first + k / columns * down.step};
    grid.slots.push_back(PlaceSlot(at, content, needs));
  }
  return grid;
}

}  // namespace tessel::paper
