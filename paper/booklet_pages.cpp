#include "paper/booklet_pages.h"

#include "paper/front_matter.h"
#include "paper/puzzle_slot.h"
#include "paper/text.h"

namespace tessel::paper {

namespace {

using Kind = PlannedPage::Kind;

Slot Moved(Slot slot, Point by) {
  for (Box* const box : {&slot.heading, &slot.board, &slot.solution, &slot.code}) {
    box->x += by.x;
    box->y += by.y;
  }
  return slot;
}

class PageDrawing {
 public:
  PageDrawing(cairo_t* context, const Fonts& fonts, const BookletView& booklet, CodesAhead& codes,
              int page)
      : context_(context),
        fonts_(fonts),
        booklet_(booklet),
        codes_(codes),
        number_(page),
        page_(booklet.plan.pages[static_cast<std::size_t>(page - 1)]),
        content_(booklet.plan.ContentOf(page, booklet.options)) {}

  tl::expected<void, std::string> Draw() const {
    if (page_.kind == Kind::kTitle) {
      DrawTitlePage(Front(), WholePage());
      return {};
    }
    DrawPageNumber();
    if (page_.kind == Kind::kRules) {
      DrawRulesPage(Front(), content_);
      return {};
    }
    DrawHeader();
    return page_.kind == Kind::kPuzzles ? DrawPuzzles() : DrawSolutions();
  }

 private:
  FrontMatter Front() const {
    return {context_, fonts_, booklet_.options, booklet_.puzzles, booklet_.plan.firstSolutionPage};
  }
  Box WholePage() const {
    return {content_.x, content_.y - kHeader, content_.width, content_.height + kHeader + kFooter};
  }
  const BookletPuzzle& PuzzleAt(int position) const {
    const int index = booklet_.plan.order[static_cast<std::size_t>(position)];
    return booklet_.puzzles[static_cast<std::size_t>(index)];
  }
  bool HasSolutionPage(const BookletPuzzle& puzzle) const {
    return booklet_.plan.firstSolutionPage != 0 && puzzle.puzzle.solution.has_value();
  }

  void DrawPageNumber() const;
  void DrawHeader() const;
  tl::expected<void, std::string> DrawPuzzles() const;
  tl::expected<void, std::string> DrawSolutions() const;

  cairo_t* context_;
  const Fonts& fonts_;
  const BookletView& booklet_;
  CodesAhead& codes_;
  int number_;
  const PlannedPage& page_;
  Box content_;
};

// At the outer edge where pages are bound like a book's, else in the middle.
void PageDrawing::DrawPageNumber() const {
  const bool mirror = booklet_.options.mirror;
  const Align align = !mirror ? Align::kCentre : number_ % 2 == 0 ? Align::kLeft : Align::kRight;
  const double x = align == Align::kCentre ? content_.x + content_.width / 2
                   : align == Align::kLeft ? content_.x
                                           : content_.Right();
  const double size = booklet_.options.large ? 14.0 : 9.0;
  DrawText(context_, fonts_, std::to_string(number_), {Face::kRegular, size, 0.3},
           {x, content_.Bottom() + kFooter}, align);
}

// The section's name opens it in large letters; later pages repeat it as a running head, beside the
// booklet's title.
void PageDrawing::DrawHeader() const {
  const double top = content_.y - kHeader;
  const TextStyle running{Face::kItalic, booklet_.options.large ? 12.0 : 9.0, 0.35};
  const TextStyle opening{Face::kBold, 17.0};
  const TextStyle& style = page_.opensSection ? opening : running;
  const double baseline = top + (page_.opensSection ? 13.0 : 9.0);
  DrawText(context_, fonts_, page_.heading, style, {content_.x, baseline});
  const double room = content_.width - WidthOf(fonts_, page_.heading, style) - 12.0;
  DrawText(context_, fonts_, Shortened(fonts_, booklet_.options.title, running, room), running,
           {content_.Right(), baseline}, Align::kRight);
}

tl::expected<void, std::string> PageDrawing::DrawPuzzles() const {
  const BookletOptions& options = booklet_.options;
  SlotContext in{.context = context_,
                 .fonts = fonts_,
                 .options = options,
                 .headingSize = HeadingSize(options, options.perPage)};
  for (std::size_t k = 0; k < page_.positions.size(); ++k) {
    const BookletPuzzle& puzzle = PuzzleAt(page_.positions[k]);
    in.linked = HasSolutionPage(puzzle);
    const Slot slot = Moved(booklet_.plan.puzzles.slots[k], {content_.x, content_.y});
    DrawPuzzleSlot(in, puzzle, options.numberFrom + page_.positions[k], slot);
    if (!options.link) continue;
    const QrCode code = codes_.Next();
    if (!code) return tl::unexpected(code.error());
    DrawStencil(context_, code->get(), slot.code);
  }
  return {};
}

tl::expected<void, std::string> PageDrawing::DrawSolutions() const {
  const BookletOptions& options = booklet_.options;
  const std::vector<Slot>& slots = booklet_.plan.solutions.slots;
  const SlotContext in{.context = context_,
                       .fonts = fonts_,
                       .options = options,
                       .headingSize = HeadingSize(options, static_cast<int>(slots.size()))};
  for (std::size_t k = 0; k < page_.positions.size(); ++k) {
    DrawSolutionSlot(in, PuzzleAt(page_.positions[k]), options.numberFrom + page_.positions[k],
                     Moved(slots[k], {content_.x, content_.y}));
  }
  return {};
}

}  // namespace

tl::expected<void, std::string> DrawPage(cairo_t* context, const Fonts& fonts,
                                         const BookletView& booklet, CodesAhead& codes, int page) {
  return PageDrawing(context, fonts, booklet, codes, page).Draw();
}

}  // namespace tessel::paper
