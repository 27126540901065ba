#include "grade/grade_text.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "grade/grade_summary.h"

namespace tessel::grade {
namespace {

Grade HardGrade() {
  Grade grade;
  grade.Count(StepKind::kHiddenSingle, 7);
  grade.Count(StepKind::kNakedQuad, 2);
  return grade;
}

Grade StuckGrade() {
  Grade grade;
  grade.Count(StepKind::kNakedSingle, 3);
  grade.level = Level::kBeyond;
  grade.stuck = CandidateGrid{};
  grade.stuck->digits[80] = 9;
  return grade;
}

std::string FieldOf(const Grade& grade, const std::string& column) {
  const std::vector<std::string> columns = GradeColumns();
  const auto found = std::ranges::find(columns, column);
  return GradeFields(grade).at(static_cast<std::size_t>(found - columns.begin()));
}

TEST(GradeText, HasAFieldForEveryColumn) {
  EXPECT_EQ(GradeColumns().size(), GradeFields(Grade{}).size());
  EXPECT_EQ(GradeColumns().size(), 4 + kStepKindCount + 2);
}

TEST(GradeText, TellsAGrade) {
  EXPECT_EQ(FieldOf(HardGrade(), "level"), "4");
  EXPECT_EQ(FieldOf(HardGrade(), "name"), "Hard");
  EXPECT_EQ(FieldOf(HardGrade(), "hardest"), "naked quad");
  EXPECT_EQ(FieldOf(HardGrade(), "score"), std::to_string(7 * 14 + 2 * 120));
  EXPECT_EQ(FieldOf(HardGrade(), "hidden_single"), "7");
  EXPECT_EQ(FieldOf(HardGrade(), "naked_single"), "0");
  EXPECT_EQ(FieldOf(HardGrade(), "fewest"), "2");
  EXPECT_EQ(FieldOf(HardGrade(), "stuck"), "");
}

TEST(GradeText, TellsWhereItIsStuck) {
  EXPECT_EQ(FieldOf(StuckGrade(), "name"), "Beyond");
  EXPECT_EQ(FieldOf(StuckGrade(), "stuck"), std::string(80, '.') + "9");
}

TEST(GradeText, LeavesTheHardestEmptyWithoutSteps) {
  EXPECT_EQ(FieldOf(Grade{}, "hardest"), "");
  EXPECT_EQ(FieldOf(Grade{}, "fewest"), "0");
}

TEST(GradeSummary, CountsLevelsKindsAndScores) {
  GradeSummary summary;
  summary.Add(HardGrade());
  summary.Add(HardGrade());
  summary.Add(StuckGrade());
  EXPECT_EQ(summary.puzzles, 3U);
  EXPECT_EQ(summary.levels, (std::array<std::uint64_t, kLevelCount>{0, 0, 0, 2, 0, 1}));
  const auto quads = summary.kinds[static_cast<std::size_t>(StepKind::kNakedQuad)];
  EXPECT_EQ(quads, (GradeSummary::OfKind{2, 4}));
  EXPECT_EQ(summary.scores.size(), 2U);
  EXPECT_EQ(summary.scores.at(12)[5], 1U);
}

}  // namespace
}  // namespace tessel::grade
