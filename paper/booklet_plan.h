// What stands on which page of a booklet, before anything is drawn.
#pragma once

#include <string>
#include <vector>

#include "paper/board_drawing.h"
#include "paper/booklet.h"
#include "paper/page_grid.h"

namespace tessel::paper {

struct PlannedPage {
  enum class Kind : std::uint8_t { kTitle, kRules, kPuzzles, kSolutions };

  Kind kind = Kind::kPuzzles;
  std::string heading{};  // of the section that the page belongs to
  bool opensSection = false;
  std::vector<int> positions{};  // of the puzzles in `BookletPlan::order`, 0-based
};

struct BookletPlan {
  std::vector<int> order;  // indices of the puzzles as they are printed
  std::vector<PlannedPage> pages{};
  PageGrid puzzles{};
  PageGrid solutions{};
  double gutter = 0.0;
  int firstSolutionPage = 0;  // 1-based; 0 if there is none

  // The place of what a page holds, between its header and its footer; pages are 1-based.
  Box ContentOf(int page, const BookletOptions& options) const;
};

struct BookletView {
  std::span<const BookletPuzzle> puzzles;
  const BookletOptions& options;
  const BookletPlan& plan;
};

// The font size of the line above a board, where a page has `count` of them.
double HeadingSize(const BookletOptions& options, int count);
BoardStyle BoardStyleOf(const BookletOptions& options, double side);

inline constexpr double kHeader = 28.0;
inline constexpr double kFooter = 24.0;

// The errors tell why the puzzles cannot be printed so.
tl::expected<BookletPlan, std::string> PlanBooklet(std::span<const BookletPuzzle> puzzles,
                                                   const BookletOptions& options);

}  // namespace tessel::paper
