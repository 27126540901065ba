#include "shell/vestiges.h"

#include <gtest/gtest.h>

#include "tests/core/layouts.h"
#include "tests/fakes/recording_view.h"

namespace tessel {
namespace {

struct VestigesTest : testing::Test {
  void List(std::initializer_list<int> cells) {
    std::size_t next = 0;
    for (const int cell : cells) state.CellList[next++] = static_cast<std::int16_t>(cell);
  }

  RecordingView view;
  Form form{view};
  GameState state = StateWithLayout(kIrregularLayout);
  Vestiges vestiges{state, form};
};

using VestigeRemoveCandidates = VestigesTest;
using VestigeUndo = VestigesTest;

TEST_F(VestigeRemoveCandidates, WritesRowColumnAndCageCellsIntoTheirOwnMasks) {
  state.Candidates.fill(kAllCandidates);
  // B9 lies in the row of B1, J1 in its column, C3 in its cage alone.
  List({17, 72, 20});
  vestiges.RemoveCandidates(9, 5, 2);
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

TEST_F(VestigeRemoveCandidates, WritesACellOfTheSameRowAndCageIntoTheRowMaskOnly) {
  state.Candidates.fill(kAllCandidates);
  List({10, 18});  // B2 and C1, both in the cage of B1
  vestiges.RemoveCandidates(9, 1, 1);
  EXPECT_EQ(state.UndoRowMask[1], 1 << 1);
  EXPECT_EQ(state.UndoColumnMask[1], 1 << 2);
  EXPECT_EQ(state.UndoCageMask[1], 0);
}

TEST_F(VestigeRemoveCandidates, CountsTheCellItselfToItsRow) {
  state.Candidates.fill(kAllCandidates);
  List({9});
  vestiges.RemoveCandidates(9, 1, 0);
  EXPECT_EQ(state.UndoRowMask[1], 1);
  EXPECT_EQ(state.UndoColumnMask[1], 0);
  EXPECT_EQ(state.UndoCageMask[1], 0);
  EXPECT_FALSE(Holds(state.Candidates[9], 1));
}

TEST_F(VestigeRemoveCandidates, LeavesCellsAloneThatShareNoHouse) {
  state.Candidates.fill(kAllCandidates);
  List({80});
  vestiges.RemoveCandidates(9, 1, 0);
  EXPECT_EQ(state.UndoCount, 1);
  EXPECT_EQ(state.Candidates[80], kAllCandidates);
  EXPECT_EQ(state.UndoRowMask[1] | state.UndoColumnMask[1] | state.UndoCageMask[1], 0);
}

TEST_F(VestigeRemoveCandidates, PushesAnEmptyStepWhenNoListedCellHoldsTheCandidate) {
  List({10, 11, 18});
  const MaskBoard before = state.Candidates;
  vestiges.RemoveCandidates(9, 6, 2);
  EXPECT_EQ(state.UndoCount, 1);
  EXPECT_EQ(state.UndoRowMask[1] | state.UndoColumnMask[1] | state.UndoCageMask[1], 0);
  EXPECT_EQ(state.Candidates, before);
}

TEST_F(VestigeRemoveCandidates, ExaminesTheListUpToRemovePtrAlone) {
  state.Candidates.fill(kAllCandidates);
  List({10, 11, 12});
  vestiges.RemoveCandidates(9, 6, 1);
  EXPECT_EQ(state.UndoRowMask[1], 0b110);
  EXPECT_TRUE(Holds(state.Candidates[12], 6));
}

TEST_F(VestigeRemoveCandidates, ExaminesCellZeroInEveryPositionOfTheListThatNothingFills) {
  state.Candidates.fill(kAllCandidates);
  vestiges.RemoveCandidates(8, 3, 80);
  EXPECT_EQ(state.UndoRowMask[1], 1);
  MaskBoard expected;
  expected.fill(kAllCandidates);
  expected[0] = Without(kAllCandidates, BitOf(3));
  EXPECT_EQ(state.Candidates, expected);
}

TEST_F(VestigeRemoveCandidates, ResizesTheUndoArraysToTheStepsExactly) {
  for (int step = 1; step <= 20; ++step) {
    vestiges.RemoveCandidates(step, 1 + step % 9, 0);
    for (const auto* entries : {&state.UndoDigit, &state.UndoCell, &state.UndoRowMask,
                                &state.UndoColumnMask, &state.UndoCageMask}) {
      EXPECT_EQ(entries->size(), static_cast<std::size_t>(step) + 1);
    }
  }
  for (int step = 1; step <= 20; ++step) EXPECT_EQ(state.UndoCell[step], step);
}

TEST_F(VestigeRemoveCandidates, IsSafeWhileThereAreNoCages) {
  state = GameState{};
  state.Candidates.fill(kAllCandidates);
  List({80});
  vestiges.RemoveCandidates(9, 1, 0);
  EXPECT_EQ(state.UndoCount, 1);
  EXPECT_EQ(state.Candidates[80], kAllCandidates);
}

TEST_F(VestigeUndo, DoesNothingWhenThereIsNoStep) {
  state.Candidates.fill(3);
  state.WorkGrid.fill(4);
  vestiges.Undo();
  EXPECT_EQ(state.UndoCount, 0);
  EXPECT_EQ(state.WorkGrid[0], 4);
  EXPECT_EQ(state.Candidates[0], 3);
}

TEST_F(VestigeUndo, PutsBackWhatTheStepRemovedAndNothingElse) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    state.Candidates[cell] = static_cast<Mask>(cell % 2 == 0 ? kAllCandidates : BitOf(1));
  }
  for (int cell = 0; cell < kCellCount; ++cell) {
    state.CellList[cell] = static_cast<std::int16_t>(cell);
  }
  const MaskBoard before = state.Candidates;
  vestiges.RemoveCandidates(40, 5, 80);
  ASSERT_NE(state.Candidates, before);
  vestiges.Undo();
  EXPECT_EQ(state.Candidates, before);
  EXPECT_EQ(state.UndoCount, 0);
}

TEST_F(VestigeUndo, TakesTheNewestStepFirst) {
  state.Candidates.fill(kAllCandidates);
  List({10});
  vestiges.RemoveCandidates(9, 5, 0);
  vestiges.RemoveCandidates(9, 6, 0);
  vestiges.Undo();
  EXPECT_EQ(state.UndoCount, 1);
  EXPECT_TRUE(Holds(state.Candidates[10], 6));
  EXPECT_FALSE(Holds(state.Candidates[10], 5));
}

TEST_F(VestigeUndo, ClearsTheCellInWorkGridAndNotOnThePlayBoard) {
  state.WorkGrid[9] = 5;
  state.PlayBoard.Board[9] = 5;
  vestiges.RemoveCandidates(9, 5, 0);
  vestiges.Undo();
  EXPECT_EQ(state.WorkGrid[9], 0);
  EXPECT_EQ(state.PlayBoard.Board[9], 5);
}

TEST_F(VestigeUndo, LeavesTheArraysAsTheyAreUntilTheNextPush) {
  state.Candidates.fill(kAllCandidates);
  List({10});
  vestiges.RemoveCandidates(9, 5, 0);
  vestiges.RemoveCandidates(9, 6, 0);
  vestiges.RemoveCandidates(9, 7, 0);
  vestiges.Undo();
  vestiges.Undo();
  EXPECT_EQ(state.UndoRowMask.size(), 4u);
  EXPECT_EQ(state.UndoDigit[3], 7);
  EXPECT_EQ(state.UndoRowMask[3], 2);
  List({80});
  vestiges.RemoveCandidates(11, 8, 0);
  EXPECT_EQ(state.UndoDigit.size(), 3u);
  EXPECT_EQ(state.UndoCell[2], 11);
  EXPECT_EQ(state.UndoDigit[1], 5);
  EXPECT_EQ(state.UndoRowMask[2], 0);  // not what the step before at this place left
}

TEST_F(VestigesTest, WriteHintDoesNothing) {
  vestiges.WriteHint();
  EXPECT_EQ(view.changes, 0);
  EXPECT_EQ(form.TextHint(), "Press [Hint] if you got stuck");
}

TEST_F(VestigesTest, AddTextAppendsWhereverTheSelectionIs) {
  vestiges.AddText("one, ");
  form.SelectText1(0, 3);
  vestiges.AddText("two");
  EXPECT_EQ(form.Text1(), "one, two");
}

TEST_F(VestigesTest, SpecialPencilmarksShowsEveryMarkInOneOfTwoColours) {
  for (const bool highlighted : {true, false}) {
    for (int cell = 0; cell < kCellCount; ++cell) form.SetMarksVisible(cell, false);
    vestiges.SpecialPencilmarks(highlighted);
    for (int cell = 0; cell < kCellCount; ++cell) {
      for (int digit = 1; digit <= kSide; ++digit) {
        EXPECT_TRUE(form.Mark(cell, digit).visible);
        EXPECT_EQ(form.Mark(cell, digit).colour, highlighted ? (Rgb{0x10, 0xD0, 0xD0}) : kBlack);
      }
    }
  }
}

}  // namespace
}  // namespace tessel
