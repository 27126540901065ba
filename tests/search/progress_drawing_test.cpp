#include <gtest/gtest.h>

#include "tests/oracle/search/samples.h"
#include "tests/search/search_rig.h"

namespace tessel {
namespace {

// A search of the regular layout that has not begun: the cells stand in the order 0..80, every
// mark is black.
struct ProgressDrawingTest : testing::Test {
  ProgressDrawingTest() {
    PerCell<std::int16_t> order;
    for (int i = 0; i < kCellCount; ++i) order[i] = static_cast<std::int16_t>(i);
    rig.search.StartEmpty(order);
    for (int cell = 0; cell < kCellCount; ++cell) rig.form.SetMarksColour(cell, kBlack);
    rig.view.changes = 0;
  }
  // The digits whose marks are shown, as a mask. A mark that is not shown has its cage's colour.
  Mask Shown(int cell) const {
    Mask shown = 0;
    for (int digit = 1; digit <= 9; ++digit) {
      const Rgb colour = rig.form.Mark(cell, digit).colour;
      if (colour == kBlack) {
        shown = static_cast<Mask>(shown | BitOf(digit));
      } else {
        EXPECT_EQ(colour, kCageColours[rig.state.CageOfCell[cell] - 1]);
      }
    }
    return shown;
  }
  Mask Bold(int cell) const {
    Mask bold = 0;
    for (int digit = 1; digit <= 9; ++digit) {
      if (rig.form.Mark(cell, digit).bold) bold = static_cast<Mask>(bold | BitOf(digit));
    }
    return bold;
  }
  void Draw(int ptr, int cell, UpdateMode mode) { rig.drawing.DLXUpdateGrid(ptr, cell, mode); }

  SearchRig rig;
};

TEST_F(ProgressDrawingTest, CellMinus1DrawsNothingInAnyMode) {
  rig.Top().Candidates.fill(0);
  Draw(80, -1, UpdateMode::kTrial);
  Draw(80, -1, UpdateMode::kSingle);
  Draw(-1, -1, UpdateMode::kFinished);
  EXPECT_EQ(rig.view.changes, 0);
}

TEST_F(ProgressDrawingTest, TrialShowsTheOpenCandidatesAndItsDigitInBold) {
  rig.Top().Candidates[7] = 0b000010010;
  rig.Top().Candidates[50] = 0b100000001;
  rig.Top().Digit[50] = 9;
  rig.form.SetMarkBold(50, 1, true);
  Draw(50, 50, UpdateMode::kTrial);
  EXPECT_EQ(Shown(7), 0b000010010);
  EXPECT_EQ(Shown(8), kAllCandidates);
  EXPECT_EQ(Shown(50), 0b100000001);
  EXPECT_EQ(Bold(50), BitOf(9));
}

TEST_F(ProgressDrawingTest, CellsAboveThePositionAreNotRedrawn) {
  rig.Top().Candidates.fill(0);
  rig.Top().Digit[50] = 9;
  Draw(50, 50, UpdateMode::kTrial);
  EXPECT_EQ(Shown(50), 0);
  EXPECT_EQ(Shown(51), kAllCandidates);
}

TEST_F(ProgressDrawingTest, SingleShowsItsDigitAloneInNormalWeight) {
  rig.Top().Candidates.fill(0b11);
  rig.Top().Candidates[51] = 0;
  rig.Top().Digit[51] = 4;
  Draw(50, 51, UpdateMode::kSingle);
  EXPECT_EQ(Shown(51), BitOf(4));
  EXPECT_EQ(Bold(51), 0);
  EXPECT_EQ(Shown(50), 0b11);
  EXPECT_EQ(Shown(52), kAllCandidates);
}

TEST_F(ProgressDrawingTest, MarksLeftBoldByATrialStayBoldUntilTheEnd) {
  rig.Top().Digit[50] = 9;
  Draw(50, 50, UpdateMode::kTrial);
  rig.Top().Digit[49] = 2;
  Draw(49, 49, UpdateMode::kTrial);
  rig.Top().Digit[48] = 3;
  Draw(47, 48, UpdateMode::kSingle);
  EXPECT_EQ(Bold(50), BitOf(9));
  EXPECT_EQ(Bold(49), BitOf(2));
  Draw(-1, 48, UpdateMode::kFinished);
  EXPECT_EQ(Bold(50), 0);
  EXPECT_EQ(Bold(49), 0);
}

TEST_F(ProgressDrawingTest, CellWithoutADigitOnlyRedrawsTheCandidates) {
  rig.Top().Candidates.fill(0b101);
  rig.form.SetMarkBold(30, 6, true);
  Draw(40, 30, UpdateMode::kTrial);
  EXPECT_EQ(Shown(30), 0b101);
  EXPECT_EQ(Bold(30), BitOf(6));
  rig.form.SetMarksColour(41, kBlack);
  Draw(40, 41, UpdateMode::kSingle);
  EXPECT_EQ(Shown(41), kAllCandidates);
}

TEST_F(ProgressDrawingTest, FinishedGridIsOneBlackMarkACell) {
  const auto solution = oracle::AnySolution(oracle::RegularLayout(), 4).value();
  std::copy_n(solution.begin(), 80, rig.Top().Digit.begin());
  rig.form.SetMarkBold(12, 3, true);
  Draw(-1, 0, UpdateMode::kFinished);
  for (int cell = 0; cell < 80; ++cell) {
    EXPECT_EQ(Shown(cell), BitOf(solution[cell]));
    EXPECT_EQ(Bold(cell), 0);
  }
  EXPECT_EQ(Shown(80), 0);
}

TEST_F(ProgressDrawingTest, NeitherVisibilityNorTheDigitLabelsChange) {
  rig.form.SetMarkVisible(5, 5, false);
  rig.Top().Digit[50] = 9;
  Draw(50, 50, UpdateMode::kTrial);
  Draw(49, 50, UpdateMode::kSingle);
  Draw(-1, 50, UpdateMode::kFinished);
  EXPECT_FALSE(rig.form.Mark(5, 5).visible);
  EXPECT_TRUE(rig.form.Mark(5, 6).visible);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(rig.form.Cell(cell).text, 0);
    EXPECT_FALSE(rig.form.Cell(cell).opaque);
  }
  EXPECT_EQ(rig.view.pumps, 0);
}

}  // namespace
}  // namespace tessel
