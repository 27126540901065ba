#include "explain/step_picture.h"

#include <gtest/gtest.h>

#include "tests/explain/steps_by_kind.h"

namespace tessel::explain {
namespace {

using grade::StepKind;
using paper::BoardPicture;

CellSet CellsWith(const MaskBoard& marks) {
  CellSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (marks[cell] != 0) cells = cells | CellSet::Of(cell);
  }
  return cells;
}

// What is crossed out and ringed are marks of the position, and never the same ones.
TEST(StepPicture, MarksWhatTheStepIsAbout) {
  const Explanation explanation = Explain(grade::PuzzleMaker().MakeAnyKind(6));
  for (std::size_t k = 0; k < explanation.steps.size(); ++k) {
    const BoardPicture picture = PictureBefore(explanation, k);
    const auto& [step, before] = explanation.steps[k];
    EXPECT_EQ(picture.digits, before.digits);
    EXPECT_EQ(picture.marks, before.candidates);
    EXPECT_FALSE(picture.highlighted.Empty());
    for (int cell = 0; cell < kCellCount; ++cell) {
      EXPECT_EQ(Without(picture.reasons[cell], before.candidates[cell]), 0);
      EXPECT_EQ(Without(picture.struck[cell], before.candidates[cell]), 0);
      EXPECT_EQ(picture.reasons[cell] & picture.struck[cell], 0);
    }
    EXPECT_EQ(CellsWith(picture.struck).Count(), static_cast<int>(step.removals.size()));
  }
}

TEST(StepPicture, ShowsThePositionAfterIt) {
  const Explanation explanation = Explain(grade::PuzzleMaker().MakeAnyKind(6));
  for (std::size_t k = 0; k < explanation.steps.size(); ++k) {
    const BoardPicture picture = PictureAfter(explanation, k);
    EXPECT_EQ(picture.digits, explanation.After(k).digits);
    EXPECT_EQ(picture.marks, explanation.After(k).candidates);
    EXPECT_EQ(picture.placed.Count(), explanation.steps[k].step.placement ? 1 : 0);
  }
}

// The solid area has no place for the digit, the dashed one loses it: as many cells each.
TEST(StepPicture, BandsTheLeftovers) {
  const auto found = FindStep(StepKind::kTwoLineLeftovers);
  ASSERT_TRUE(found);
  const BoardPicture picture = PictureBefore(found->explanation, found->k);
  ASSERT_EQ(picture.areas.size(), 2U);
  EXPECT_EQ(picture.areas[0].Count(), picture.areas[1].Count());
  EXPECT_EQ(picture.highlighted, picture.areas[0]);
  EXPECT_TRUE((CellsWith(picture.struck) - picture.areas[1]).Empty());
  const Mask digit = found->Step().digits;
  ForEach(picture.areas[0], [&](int cell) { EXPECT_EQ(picture.marks[cell] & digit, 0); });
}

// Two lines, and the two that cross them where the digit can stand.
TEST(StepPicture, BandsTheLinesOfAFishAndThoseThatCross) {
  const auto found = FindStep(StepKind::kXWing);
  ASSERT_TRUE(found);
  const BoardPicture picture = PictureBefore(found->explanation, found->k);
  ASSERT_EQ(picture.areas.size(), 2U);
  EXPECT_EQ(picture.areas[0].Count(), 2 * kSide);
  EXPECT_EQ(picture.areas[1].Count(), 2 * kSide);
  EXPECT_EQ(picture.areas[0] & picture.areas[1], found->Step().cells);
  EXPECT_TRUE((CellsWith(picture.struck) - picture.areas[1]).Empty());
}

}  // namespace
}  // namespace tessel::explain
