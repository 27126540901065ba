#include "paper/page_grid.h"

#include <gtest/gtest.h>

namespace tessel::paper {
namespace {

constexpr double kTiny = 1e-6;
constexpr Size kArea{500, 700};

bool Overlap(const Box& a, const Box& b) {
  return a.width > 0 && b.width > 0 && a.x < b.Right() - kTiny && b.x < a.Right() - kTiny &&
         a.y < b.Bottom() - kTiny && b.y < a.Bottom() - kTiny;
}

void ExpectInside(const Box& box) {
  EXPECT_GE(box.x, -kTiny);
  EXPECT_GE(box.y, -kTiny);
  EXPECT_LE(box.Right(), kArea.width + kTiny);
  EXPECT_LE(box.Bottom(), kArea.height + kTiny);
}

std::vector<Box> BoxesOf(const PageGrid& grid) {
  std::vector<Box> boxes;
  for (const Slot& slot : grid.slots) {
    boxes.insert(boxes.end(), {slot.heading, slot.board, slot.solution, slot.code});
  }
  return boxes;
}

TEST(PageGrid, NothingOverlapsOrLeavesTheArea) {
  for (const int count : {1, 2, 4, 6, 12, 20}) {
    for (const SlotNeeds& needs : {SlotNeeds{12, 0, 0}, SlotNeeds{12, 60, 0}, SlotNeeds{12, 0, 50},
                                   SlotNeeds{12, 40, 40}, SlotNeeds{18, 74, 106}}) {
      const auto grid = FitGrid(kArea, count, needs);
      if (!grid && needs.code > 100) continue;
      ASSERT_TRUE(grid) << count;
      ASSERT_EQ(grid->slots.size(), static_cast<std::size_t>(count));
      const std::vector<Box> boxes = BoxesOf(*grid);
      for (std::size_t i = 0; i < boxes.size(); ++i) {
        if (boxes[i].width > 0) ExpectInside(boxes[i]);
        for (std::size_t k = 0; k < i; ++k) EXPECT_FALSE(Overlap(boxes[i], boxes[k])) << i << k;
      }
    }
  }
}

TEST(PageGrid, OneBoardTakesTheWholeWidth) {
  EXPECT_DOUBLE_EQ(FitGrid(kArea, 1, {.heading = 20})->boardSide, 500);
  EXPECT_DOUBLE_EQ(FitGrid({500, 400}, 1, {.heading = 20})->boardSide, 380);
}

TEST(PageGrid, TwoStandWhereThePageIsLonger) {
  const auto upright = FitGrid(kArea, 2, {.heading = 20});
  EXPECT_EQ(upright->slots[0].board.x, upright->slots[1].board.x);
  const auto wide = FitGrid({700, 500}, 2, {.heading = 20});
  EXPECT_EQ(wide->slots[0].board.y, wide->slots[1].board.y);
}

TEST(PageGrid, SlotsComeInReadingOrder) {
  const auto grid = FitGrid(kArea, 6, {.heading = 20});
  EXPECT_LT(grid->slots[0].board.x, grid->slots[1].board.x);
  EXPECT_EQ(grid->slots[0].board.y, grid->slots[1].board.y);
  EXPECT_LT(grid->slots[1].board.y, grid->slots[2].board.y);
}

TEST(PageGrid, ACodeStandsBesideTheBoardWhereThatLeavesMore) {
  const auto beside = FitGrid({500, 300}, 1, {.heading = 20, .code = 100});
  EXPECT_GT(beside->slots[0].code.x, beside->slots[0].board.Right());
  const auto under = FitGrid({300, 500}, 1, {.heading = 20, .code = 100});
  EXPECT_GT(under->slots[0].code.y, under->slots[0].board.Bottom());
}

TEST(PageGrid, ASolutionAloneStandsUnderTheBoard) {
  const auto grid = FitGrid({500, 300}, 1, {.heading = 20, .solution = 70});
  EXPECT_GT(grid->slots[0].solution.y, grid->slots[0].board.Bottom());
}

TEST(PageGrid, NoRoomNoGrid) {
  EXPECT_FALSE(FitGrid({10, 10}, 12, {.heading = 20}));
  EXPECT_FALSE(FitGrid({-5, 100}, 1, {}));
  EXPECT_FALSE(FitGrid({90, 90}, 1, {.code = 100}));
}

}  // namespace
}  // namespace tessel::paper
