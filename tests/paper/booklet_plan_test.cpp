#include "paper/booklet_plan.h"

#include <gtest/gtest.h>

#include "tests/paper/sample_puzzles.h"

namespace tessel::paper {
namespace {

using Kind = PlannedPage::Kind;

int PagesOf(const BookletPlan& plan, Kind kind) {
  int pages = 0;
  for (const PlannedPage& page : plan.pages) pages += page.kind == kind ? 1 : 0;
  return pages;
}

TEST(BookletPlan, FillsPagesAndPutsTwentySolutionsOnOne) {
  const auto plan = PlanBooklet(SamplePuzzles(41), {.perPage = 4});
  ASSERT_TRUE(plan);
  EXPECT_EQ(PagesOf(*plan, Kind::kPuzzles), 11);
  EXPECT_EQ(PagesOf(*plan, Kind::kSolutions), 3);
  EXPECT_EQ(plan->firstSolutionPage, 12);
  EXPECT_EQ(plan->solutions.slots.size(), 20u);
}

TEST(BookletPlan, SectionsAreInOrderOfLevelAndKeepTheOrderInside) {
  BookletOptions options;
  options.sections = true;
  const auto plan = PlanBooklet(SamplePuzzles(9), options);
  EXPECT_EQ(plan->order, (std::vector<int>{0, 4, 8, 1, 5, 2, 6, 3, 7}));
  std::vector<std::string> headings;
  for (const PlannedPage& page : plan->pages) {
    if (page.opensSection) headings.push_back(page.heading);
  }
  EXPECT_EQ(headings, (std::vector<std::string>{"Easy", "Moderate", "Tricky", "Without a grade",
                                                "Solutions"}));
}

TEST(BookletPlan, WithoutSectionsTheOrderStays) {
  const auto plan = PlanBooklet(SamplePuzzles(3), {});
  EXPECT_EQ(plan->order, (std::vector<int>{0, 1, 2}));
}

TEST(BookletPlan, TheGutterChangesSidesWhereMarginsAreMirrored) {
  BookletOptions options;
  options.margins = {30, 20, 30, 40};
  options.gutter = 10;
  options.mirror = true;
  const auto plan = PlanBooklet(SamplePuzzles(9), options);
  EXPECT_DOUBLE_EQ(plan->ContentOf(1, options).x, 50);
  EXPECT_DOUBLE_EQ(plan->ContentOf(2, options).x, 20);
  EXPECT_DOUBLE_EQ(plan->ContentOf(2, options).width, plan->ContentOf(1, options).width);
  EXPECT_DOUBLE_EQ(plan->ContentOf(2, options).Right(), options.page.width - 50);
}

TEST(BookletPlan, TheGutterGrowsWithTheNumberOfPages) {
  BookletOptions options;
  options.mirror = true;
  options.perPage = 1;
  options.solutions = Solutions::kNone;
  EXPECT_DOUBLE_EQ(PlanBooklet(SamplePuzzles(150), options)->gutter, 27);
  EXPECT_DOUBLE_EQ(PlanBooklet(SamplePuzzles(151), options)->gutter, 36);
  options.gutter = 5;
  EXPECT_DOUBLE_EQ(PlanBooklet(SamplePuzzles(151), options)->gutter, 5);
  options.gutter.reset();
  options.mirror = false;
  EXPECT_DOUBLE_EQ(PlanBooklet(SamplePuzzles(151), options)->gutter, 0);
}

TEST(BookletPlan, SmallPagesHaveFewerSolutions) {
  BookletOptions options;
  options.page = {300, 400};
  options.perPage = 1;
  const auto plan = PlanBooklet(SamplePuzzles(9), options);
  ASSERT_TRUE(plan);
  EXPECT_LT(plan->solutions.slots.size(), 20u);
  EXPECT_GE(plan->solutions.slots.size(), 4u);
}

}  // namespace
}  // namespace tessel::paper
