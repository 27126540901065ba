#include "hints/candidate_marks.h"

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
  void List(std::initializer_list<int> cells) {
    std::size_t next = 0;
    for (const int cell : cells) state.CellList[next++] = static_cast<std::int16_t>(cell);
  }

  RecordingView view;
  Form form{view};
  GameState state = StateWithLayout(kIrregularLayout);
  CandidateMarks marks{state, form};
};

using SwitchPencilmarksOn = CandidateMarksTest;
using SwitchPencilmarksOff = CandidateMarksTest;
using RemoveCandidates = CandidateMarksTest;
using Undo = CandidateMarksTest;

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
  state.AssignmentPending = Bool16::True;
  form.SetButtonCaption(Button::CommandHint, texts::kShowMe);
  marks.SwitchPencilmarksOn();
  EXPECT_EQ(state.AssignmentPending, Bool16::False);
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
  state.AssignmentPending = Bool16::True;
  form.SetButtonCaption(Button::CommandHint, texts::kShowMe);
  marks.SwitchPencilmarksOff();
  EXPECT_EQ(state.AssignmentPending, Bool16::False);
  EXPECT_EQ(form.Of(Button::CommandHint).caption, "Hint");
}

TEST_F(SwitchPencilmarksOff, TellsTheViewNothingWhenTheBoardShowsItAlready) {
  marks.SwitchPencilmarksOff();
  const long before = view.changes;
  marks.SwitchPencilmarksOff();
  EXPECT_EQ(view.changes, before);
}

TEST_F(RemoveCandidates, WritesRowColumnAndCageCellsIntoTheirOwnMasks) {
  state.Candidates.fill(kAllCandidates);
  // B9 lies in the row of B1, J1 in its column, C3 in its cage alone.
  List({17, 72, 20});
  marks.RemoveCandidates(9, 5, 2);
  ASSERT_EQ(state.UndoCount, 1);
  EXPECT_EQ(state.UndoCell[1], 9);
  EXPECT_EQ(state.UndoDigit[1], 5);
  EXPECT_EQ(state.UndoRowMask[1], 1 << 8);
  EXPECT_EQ(state.UndoColumnMask[1], 1 << 8);
  EXPECT_EQ(state.UndoCageMask[1], 1 << 7);  // cage 1: A1 A2 B1 B2 B3 C1 C2 C3 C4
  for (const int cell : {17, 72, 20}) {
    EXPECT_EQ(state.Candidates[cell], Without(kAllCandidates, BitOf(5))) << cell;
  }
}

TEST_F(RemoveCandidates, WritesACellOfTheSameRowAndCageIntoTheRowMaskOnly) {
  state.Candidates.fill(kAllCandidates);
  List({10, 18});  // B2 and C1, both in the cage of B1
  marks.RemoveCandidates(9, 1, 1);
  EXPECT_EQ(state.UndoRowMask[1], 1 << 1);
  EXPECT_EQ(state.UndoColumnMask[1], 1 << 2);
  EXPECT_EQ(state.UndoCageMask[1], 0);
}

TEST_F(RemoveCandidates, CountsTheCellItselfToItsRow) {
  state.Candidates.fill(kAllCandidates);
  List({9});
  marks.RemoveCandidates(9, 1, 0);
  EXPECT_EQ(state.UndoRowMask[1], 1);
  EXPECT_EQ(state.UndoColumnMask[1], 0);
  EXPECT_EQ(state.UndoCageMask[1], 0);
  EXPECT_FALSE(Holds(state.Candidates[9], 1));
}

TEST_F(RemoveCandidates, LeavesCellsAloneThatShareNoHouse) {
  state.Candidates.fill(kAllCandidates);
  List({80});
  marks.RemoveCandidates(9, 1, 0);
  EXPECT_EQ(state.UndoCount, 1);
  EXPECT_EQ(state.Candidates[80], kAllCandidates);
  EXPECT_EQ(state.UndoRowMask[1] | state.UndoColumnMask[1] | state.UndoCageMask[1], 0);
}

TEST_F(RemoveCandidates, PushesAnEmptyStepWhenNoListedCellHoldsTheCandidate) {
  List({10, 11, 18});
  const MaskBoard before = state.Candidates;
  marks.RemoveCandidates(9, 6, 2);
  EXPECT_EQ(state.UndoCount, 1);
  EXPECT_EQ(state.UndoRowMask[1] | state.UndoColumnMask[1] | state.UndoCageMask[1], 0);
  EXPECT_EQ(state.Candidates, before);
}

TEST_F(RemoveCandidates, ExaminesTheListUpToRemovePtrAlone) {
  state.Candidates.fill(kAllCandidates);
  List({10, 11, 12});
  marks.RemoveCandidates(9, 6, 1);
  EXPECT_EQ(state.UndoRowMask[1], 0b110);
  EXPECT_TRUE(Holds(state.Candidates[12], 6));
}

TEST_F(RemoveCandidates, ExaminesCellZeroInEveryPositionOfTheListThatNothingFills) {
  state.Candidates.fill(kAllCandidates);
  marks.RemoveCandidates(8, 3, 80);
  EXPECT_EQ(state.UndoRowMask[1], 1);
  MaskBoard expected;
  expected.fill(kAllCandidates);
  expected[0] = Without(kAllCandidates, BitOf(3));
  EXPECT_EQ(state.Candidates, expected);
}

TEST_F(RemoveCandidates, ResizesTheUndoArraysToTheStepsExactly) {
  for (int step = 1; step <= 20; ++step) {
    marks.RemoveCandidates(step, 1 + step % 9, 0);
    for (const auto* entries : {&state.UndoDigit, &state.UndoCell, &state.UndoRowMask,
                                &state.UndoColumnMask, &state.UndoCageMask}) {
      EXPECT_EQ(entries->size(), static_cast<std::size_t>(step) + 1);
    }
  }
  for (int step = 1; step <= 20; ++step) EXPECT_EQ(state.UndoCell[step], step);
}

TEST_F(RemoveCandidates, IsSafeWhileThereAreNoCages) {
  state = GameState{};
  state.Candidates.fill(kAllCandidates);
  List({80});
  marks.RemoveCandidates(9, 1, 0);
  EXPECT_EQ(state.UndoCount, 1);
  EXPECT_EQ(state.Candidates[80], kAllCandidates);
}

TEST_F(Undo, DoesNothingWhenThereIsNoStep) {
  state.Candidates.fill(3);
  state.WorkGrid.fill(4);
  marks.Undo();
  EXPECT_EQ(state.UndoCount, 0);
  EXPECT_EQ(state.WorkGrid[0], 4);
  EXPECT_EQ(state.Candidates[0], 3);
}

TEST_F(Undo, PutsBackWhatTheStepRemovedAndNothingElse) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    state.Candidates[cell] = static_cast<Mask>(cell % 2 == 0 ? kAllCandidates : BitOf(1));
  }
  for (int cell = 0; cell < kCellCount; ++cell) {
    state.CellList[cell] = static_cast<std::int16_t>(cell);
  }
  const MaskBoard before = state.Candidates;
  marks.RemoveCandidates(40, 5, 80);
  ASSERT_NE(state.Candidates, before);
  marks.Undo();
  EXPECT_EQ(state.Candidates, before);
  EXPECT_EQ(state.UndoCount, 0);
}

TEST_F(Undo, TakesTheNewestStepFirst) {
  state.Candidates.fill(kAllCandidates);
  List({10});
  marks.RemoveCandidates(9, 5, 0);
  marks.RemoveCandidates(9, 6, 0);
  marks.Undo();
  EXPECT_EQ(state.UndoCount, 1);
  EXPECT_TRUE(Holds(state.Candidates[10], 6));
  EXPECT_FALSE(Holds(state.Candidates[10], 5));
}

TEST_F(Undo, ClearsTheCellInWorkGridAndNotOnThePlayBoard) {
  state.WorkGrid[9] = 5;
  state.PlayBoard.Board[9] = 5;
  marks.RemoveCandidates(9, 5, 0);
  marks.Undo();
  EXPECT_EQ(state.WorkGrid[9], 0);
  EXPECT_EQ(state.PlayBoard.Board[9], 5);
}

TEST_F(Undo, LeavesTheArraysAsTheyAreUntilTheNextPush) {
  state.Candidates.fill(kAllCandidates);
  List({10});
  marks.RemoveCandidates(9, 5, 0);
  marks.RemoveCandidates(9, 6, 0);
  marks.RemoveCandidates(9, 7, 0);
  marks.Undo();
  marks.Undo();
  EXPECT_EQ(state.UndoRowMask.size(), 4u);
  EXPECT_EQ(state.UndoDigit[3], 7);
  EXPECT_EQ(state.UndoRowMask[3], 2);
  List({80});
  marks.RemoveCandidates(11, 8, 0);
  EXPECT_EQ(state.UndoDigit.size(), 3u);
  EXPECT_EQ(state.UndoCell[2], 11);
  EXPECT_EQ(state.UndoDigit[1], 5);
  EXPECT_EQ(state.UndoRowMask[2], 0);  // not what the step before at this place left
}

}  // namespace
}  // namespace tessel
