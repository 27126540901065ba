#include "shell/candidate_marks.h"

#include <gtest/gtest.h>

#include "core/texts.h"
#include "tests/core/layouts.h"
#include "tests/fakes/recording_view.h"

namespace tessel {
namespace {

struct CandidateMarksTest : testing::Test {
  // The digits whose marks the cell shows.
  Mask ShownMarks(int cell) const {
    int shown = 0;
    for (int digit = 1; digit <= kSide; ++digit) {
      if (form.Mark(cell, digit).visible) shown |= BitOf(digit);
    }
    return static_cast<Mask>(shown);
  }

  RecordingView view;
  Form form{view};
  GameState state = StateWithLayout(kIrregularLayout);
  CandidateMarks marks{state, form};
};

using SwitchPencilmarksOn = CandidateMarksTest;
using SwitchPencilmarksOff = CandidateMarksTest;

TEST_F(SwitchPencilmarksOn, ShowsExactlyTheCandidatesOfAnEmptyCell) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    state.Candidates[cell] = static_cast<Mask>(cell * 37 % 512);
  }
  marks.SwitchPencilmarksOn();
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(ShownMarks(cell), state.Candidates[cell]) << cell;
  }
}

TEST_F(SwitchPencilmarksOn, ShowsNoMarkForAnEmptyMaskAndAllForAFullOne) {
  state.Candidates[4] = 0;
  state.Candidates[5] = kAllCandidates;
  marks.SwitchPencilmarksOn();
  EXPECT_EQ(ShownMarks(4), 0);
  EXPECT_EQ(ShownMarks(5), kAllCandidates);
}

TEST_F(SwitchPencilmarksOn, ShowsNoMarkInACellWithAnEntry) {
  state.PlayBoard.Board[80] = 7;
  state.Candidates[80] = kAllCandidates;
  marks.SwitchPencilmarksOn();
  EXPECT_EQ(ShownMarks(80), 0);
  EXPECT_EQ(form.Cell(80).text, 7);
}

TEST_F(SwitchPencilmarksOn, RewritesTheTextOfEveryCell) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    form.SetCellText(cell, 1);
    state.PlayBoard.Board[cell] = static_cast<std::uint8_t>(cell % 10);
  }
  marks.SwitchPencilmarksOn();
  for (int cell = 0; cell < kCellCount; ++cell) EXPECT_EQ(form.Cell(cell).text, cell % 10);
}

TEST_F(SwitchPencilmarksOn, EndsAPendingAssignment) {
  state.AssignmentPending = Bool16::kTrue;
  form.SetButtonCaption(Button::CommandHint, texts::kShowMe);
  marks.SwitchPencilmarksOn();
  EXPECT_EQ(state.AssignmentPending, Bool16::kFalse);
  EXPECT_EQ(form.Of(Button::CommandHint).caption, "Hint");
}

TEST_F(SwitchPencilmarksOn, KeepsColoursAndCandidates) {
  form.SetMarkColour(3, 4, kHighlightRed);
  state.Candidates[3] = BitOf(4);
  marks.SwitchPencilmarksOn();
  EXPECT_EQ(form.Mark(3, 4).colour, kHighlightRed);
  EXPECT_EQ(state.Candidates[3], BitOf(4));
}

TEST_F(SwitchPencilmarksOff, ShowsAllMarksOfAnEmptyCellWhateverItsCandidates) {
  state.Candidates[12] = BitOf(2);
  form.SetMarksVisible(12, false);
  form.SetMarksVisible(13, false);
  marks.SwitchPencilmarksOff();
  EXPECT_EQ(ShownMarks(12), kAllCandidates);
  EXPECT_EQ(ShownMarks(13), kAllCandidates);
  EXPECT_EQ(state.Candidates[12], BitOf(2));
}

TEST_F(SwitchPencilmarksOff, ShowsNoMarkInACellWithAnEntry) {
  state.PlayBoard.Board[0] = 9;
  marks.SwitchPencilmarksOff();
  EXPECT_EQ(ShownMarks(0), 0);
  EXPECT_EQ(form.Cell(0).text, 9);
}

TEST_F(SwitchPencilmarksOff, RewritesTheTextOfEveryCell) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    form.SetCellText(cell, 1);
    state.PlayBoard.Board[cell] = static_cast<std::uint8_t>(cell % 10);
  }
  marks.SwitchPencilmarksOff();
  for (int cell = 0; cell < kCellCount; ++cell) EXPECT_EQ(form.Cell(cell).text, cell % 10);
}

TEST_F(SwitchPencilmarksOff, EndsAPendingAssignment) {
  state.AssignmentPending = Bool16::kTrue;
  form.SetButtonCaption(Button::CommandHint, texts::kShowMe);
  marks.SwitchPencilmarksOff();
  EXPECT_EQ(state.AssignmentPending, Bool16::kFalse);
  EXPECT_EQ(form.Of(Button::CommandHint).caption, "Hint");
}

TEST_F(SwitchPencilmarksOff, TellsTheViewNothingWhenTheBoardShowsItAlready) {
  marks.SwitchPencilmarksOff();
  const long before = view.changes;
  marks.SwitchPencilmarksOff();
  EXPECT_EQ(view.changes, before);
}

}  // namespace
}  // namespace tessel
