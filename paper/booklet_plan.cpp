#include "paper/booklet_plan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace tessel::paper {

namespace {

constexpr double kCodeSide = 106.0;  // of about 100 modules: a third of a millimetre each
constexpr double kSmallSolution = 74.0;
constexpr double kMinDigit = 6.0;
constexpr double kMinSolutionDigit = 4.5;
constexpr double kLargeDigit = 16.0;

// What binders ask for.
struct GutterOf {
  int pages;
  double inches;
};
constexpr std::array kGutters{GutterOf{150, 0.375}, GutterOf{300, 0.5}, GutterOf{500, 0.625},
                              GutterOf{700, 0.75}};
constexpr double kWidestGutter = 0.875 * kPointsPerInch;

double GutterFor(std::size_t pages) {
  const auto* const found = std::ranges::find_if(kGutters, [pages](const GutterOf& row) {
    return pages <= static_cast<std::size_t>(row.pages);
  });
  return found == kGutters.end() ? kWidestGutter : found->inches * kPointsPerInch;
}

std::string Tenths(double value) {
  const long tenths = std::lround(std::floor(value * 10));
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

Size ContentSize(const BookletOptions& options, double gutter) {
  const Margins& margins = options.margins;
  return {options.page.width - margins.left - margins.right - gutter,
          options.page.height - margins.top - margins.bottom - kHeader - kFooter};
}

double DigitPoints(double boardSide, const BookletOptions& options) {
  const BoardStyle style = BoardStyleOf(options, boardSide);
  return style.digitSize * CellSideOf(style, false);
}

double LeastSide(double digit, const BookletOptions& options) {
  return digit / DigitPoints(1.0, options);
}

SlotNeeds NeedsOf(const BookletOptions& options) {
  const double small = options.large ? LeastSide(kLargeDigit, options) : kSmallSolution;
  return {.heading = 1.75 * HeadingSize(options, options.perPage),
          .solution = options.solutions == Solutions::kBelow ? small : 0.0,
          .code = options.link ? kCodeSide : 0.0};
}

std::string TooSmall(const BookletOptions& options, double digit, double least) {
  const std::string room =
      digit > 0 ? "leaves digits of " + Tenths(digit) + " pt where " + Tenths(least) + " are needed"
                : "has no room for it";
  return "the page is too small: " + std::to_string(options.perPage) + " a page " + room +
         "; take fewer a page, narrower margins or a larger page";
}

tl::expected<PageGrid, std::string> FitPuzzles(const BookletOptions& options, Size content) {
  const double least = options.large ? kLargeDigit : kMinDigit;
  std::optional<PageGrid> grid = FitGrid(content, options.perPage, NeedsOf(options));
  const double digit = grid ? DigitPoints(grid->boardSide, options) : 0.0;
  if (digit < least) return tl::unexpected(TooSmall(options, digit, least));
  return *std::move(grid);
}

// As many as are readable, up to 20.
tl::expected<PageGrid, std::string> FitSolutions(const BookletOptions& options, Size content) {
  const double least = options.large ? kLargeDigit : kMinSolutionDigit;
  for (const int count : {20, 16, 12, 9, 6, 4, 2, 1}) {
    const SlotNeeds needs{.heading = 1.6 * HeadingSize(options, count)};
    std::optional<PageGrid> grid = FitGrid(content, count, needs);
    if (grid && DigitPoints(grid->boardSide, options) >= least) return *std::move(grid);
  }
  return tl::unexpected(std::string("the page is too small for a solution"));
}

std::vector<int> PrintedOrder(std::span<const BookletPuzzle> puzzles,
                              const BookletOptions& options) {
  std::vector<int> order(puzzles.size());
  std::iota(order.begin(), order.end(), 0);
  if (!options.sections) return order;
  const auto level = [&](int index) {
    const auto& grade = puzzles[static_cast<std::size_t>(index)].grade;
    return std::pair(!grade, grade ? grade->level : 0);
  };
  std::ranges::stable_sort(order, {}, level);
  return order;
}

std::string SectionOf(const BookletPuzzle& puzzle, const BookletOptions& options) {
  if (!options.sections) return {};
  return puzzle.grade ? puzzle.grade->name : "Without a grade";
}

// Appends pages that hold the positions, each page those of one section.
void AddPages(std::vector<PlannedPage>& pages, PlannedPage::Kind kind, std::size_t capacity,
              const std::vector<int>& positions, const auto& sectionOf) {
  for (const int position : positions) {
    const std::string section = sectionOf(position);
    const bool follows = !pages.empty() && pages.back().kind == kind;
    const bool opens = !follows || pages.back().heading != section;
    if (opens || pages.back().positions.size() == capacity) {
      pages.push_back({.kind = kind, .heading = section, .opensSection = opens, .positions = {}});
    }
    pages.back().positions.push_back(position);
  }
}

void AddPuzzlePages(BookletPlan& plan, std::span<const BookletPuzzle> puzzles,
                    const BookletOptions& options) {
  std::vector<int> positions(plan.order.size());
  std::iota(positions.begin(), positions.end(), 0);
  AddPages(plan.pages, PlannedPage::Kind::kPuzzles, plan.puzzles.slots.size(), positions,
           [&](int position) {
             return SectionOf(
                 puzzles[static_cast<std::size_t>(plan.order[static_cast<std::size_t>(position)])],
                 options);
           });
}

void AddSolutionPages(BookletPlan& plan, std::span<const BookletPuzzle> puzzles) {
  std::vector<int> positions;
  for (std::size_t position = 0; position < plan.order.size(); ++position) {
    const auto index = static_cast<std::size_t>(plan.order[position]);
    if (puzzles[index].puzzle.solution) positions.push_back(static_cast<int>(position));
  }
  if (positions.empty()) return;
  plan.firstSolutionPage = static_cast<int>(plan.pages.size()) + 1;
  AddPages(plan.pages, PlannedPage::Kind::kSolutions, plan.solutions.slots.size(), positions,
           [](int) { return std::string("Solutions"); });
}

tl::expected<BookletPlan, std::string> PlanWithGutter(std::span<const BookletPuzzle> puzzles,
                                                      const BookletOptions& options,
                                                      double gutter) {
  BookletPlan plan{.order = PrintedOrder(puzzles, options), .gutter = gutter};
  const Size content = ContentSize(options, gutter);
  auto grid = FitPuzzles(options, content);
  if (!grid) return tl::unexpected(grid.error());
  plan.puzzles = *std::move(grid);
  if (options.titlePage) plan.pages.push_back({.kind = PlannedPage::Kind::kTitle});
  if (options.rulesPage) plan.pages.push_back({.kind = PlannedPage::Kind::kRules});
  AddPuzzlePages(plan, puzzles, options);
  if (options.solutions != Solutions::kBack) return plan;
  grid = FitSolutions(options, content);
  if (!grid) return tl::unexpected(grid.error());
  plan.solutions = *std::move(grid);
  AddSolutionPages(plan, puzzles);
  return plan;
}

}  // namespace

double HeadingSize(const BookletOptions& options, int count) {
  if (options.large) return 16.0;
  return count <= 2 ? 12.0 : count <= 6 ? 10.5 : count <= 12 ? 9.0 : 7.5;
}

BoardStyle BoardStyleOf(const BookletOptions& options, double side) {
  return {.side = side, .tint = options.tint, .digitSize = options.large ? 0.8 : 0.66};
}

Box BookletPlan::ContentOf(int page, const BookletOptions& options) const {
  const Size size = ContentSize(options, gutter);
  const bool turned = options.mirror && page % 2 == 0;
  const double left = turned ? options.margins.right : options.margins.left + gutter;
  return {left, options.margins.top + kHeader, size.width, size.height};
}

// A wider gutter can mean more pages, and more pages a wider gutter: both only grow.
tl::expected<BookletPlan, std::string> PlanBooklet(std::span<const BookletPuzzle> puzzles,
                                                   const BookletOptions& options) {
  if (puzzles.empty()) return tl::unexpected(std::string("there is no puzzle to print"));
  const bool fixed = options.gutter.has_value() || !options.mirror;
  auto plan = PlanWithGutter(puzzles, options, fixed ? options.gutter.value_or(0.0) : GutterFor(0));
  while (!fixed && plan && GutterFor(plan->pages.size()) > plan->gutter) {
    plan = PlanWithGutter(puzzles, options, GutterFor(plan->pages.size()));
  }
  return plan;
}

}  // namespace tessel::paper
