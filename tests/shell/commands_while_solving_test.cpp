// The generation buttons work while the solving mode is open.
#include <gmock/gmock.h>

#include <utility>

#include "tests/shell/disturbance.h"
#include "tests/shell/enabled_buttons.h"
#include "tests/shell/solving_test.h"

namespace tessel {
namespace {

class CommandsWhileSolving : public SolvingTest {
 protected:
  // A new layout that is soon sawed and soon filled.
  void SawIrregular() {
    program.clock.nextSeed = 19;
    program.Tick(CheckBox::MakeRegular, false);
    program.main.Click(Button::CommandSaw);
  }
  // Whether two different cells share a row, a column or a cage of the layout as it is now.
  bool SeeEachOther(int a, int b) {
    return a != b && (RowOf(a) == RowOf(b) || ColumnOf(a) == ColumnOf(b) ||
                      State().CageOfCell[a] == State().CageOfCell[b]);
  }
  int CellWithAMarkInSight() {
    for (int cell = 0; cell < kCellCount; ++cell) {
      for (int digit = 1; digit <= kSide; ++digit) {
        if (Display().Mark(cell, digit).visible &&
            Display().Mark(cell, digit).colour != Display().Cell(cell).PaintedBackground()) {
          return cell;
        }
      }
    }
    return -1;
  }
};

TEST_F(CommandsWhileSolving, TheOldPuzzleGoesOnAfterANewSaw) {
  Left(kEmpty, 2);
  const PuzzleRecord board = State().PlayBoard;
  const MaskBoard candidates = State().Candidates;
  SawIrregular();
  EXPECT_EQ(State().PlayBoard, board);
  EXPECT_EQ(State().Candidates, candidates);
  EXPECT_TRUE(Display().SolveButtonsVisible());
  EXPECT_TRUE(BoardIsOpen());
  EXPECT_EQ(EnabledButtons(Display()), kLayoutMade);
  EXPECT_EQ(Display().Cell(kGiven).text, 0) << "Saw clears the digits";
  Right(kOtherEmpty, 1);
  EXPECT_EQ(Display().Cell(kGiven).text, 1) << "the next refresh shows them again";
  EXPECT_EQ(Display().Cell(kEmpty).text, 2);
}

TEST_F(CommandsWhileSolving, ADigitPlacedAfterANewSawSeesTheNewCages) {
  SawIrregular();
  Probe().Candidates.fill(kAllCandidates);
  Untick();
  Left(40, 7);
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (cell == 40) continue;
    EXPECT_EQ(Holds(Candidates(cell), 7), !SeeEachOther(cell, 40)) << cell;
  }
}

TEST_F(CommandsWhileSolving, RestartKeepsTheNewCages) {
  SawIrregular();
  const auto cages = State().CageOfCell;
  program.main.Click(Button::CommandRestart);
  EXPECT_EQ(State().CageOfCell, cages);
  EXPECT_EQ(State().PlayBoard, KnownPuzzle());
  for (int cell = 0; cell < kCellCount; ++cell) {
    Mask expected = IsKnownGiven(cell) ? Mask{0} : kAllCandidates;
    for (int peer = 0; peer < kCellCount; ++peer) {
      if (IsKnownGiven(peer) && SeeEachOther(cell, peer)) {
        expected = Without(expected, BitOf(KnownSolution(peer)));
      }
    }
    EXPECT_EQ(Candidates(cell), expected) << cell;
  }
}

TEST_F(CommandsWhileSolving, QuitPaintsTheMarksInTheNewCagesColours) {
  SawIrregular();
  program.main.Click(Button::CommandQuit);
  EXPECT_EQ(CellWithAMarkInSight(), -1);
  EXPECT_EQ(EnabledButtons(Display()), kLayoutMade);
  EXPECT_FALSE(Display().SolveButtonsVisible());
  EXPECT_EQ(Display().Cell(kGiven).text, 1) << "the old puzzle is shown";
}

TEST_F(CommandsWhileSolving, TheWholeFrameWorksAfterANewSaw) {
  SawIrregular();
  for (int round = 0; round < 3; ++round) {
    program.main.Click(Button::CommandHint);
    program.main.Toggle(CheckBox::CheckPencilmarks);
    program.main.Click(Button::CommandHint);
    program.main.Click(Button::CommandHint);
    ClickEveryCell(program);
    program.main.Click(Button::CommandSolution);
    program.main.Click(Button::CommandRestart);
  }
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_TRUE(!IsKnownGiven(cell) || Board(cell) == KnownSolution(cell)) << cell;
  }
}

TEST_F(CommandsWhileSolving, EveryCommandMakesEveryMarkVisibleWhenItBegins) {
  for (const Button command : {Button::CommandSaw, Button::CommandGo, Button::CommandConceal}) {
    program.main.Click(Button::CommandRestart);
    ASSERT_EQ(Shown(kGiven), 0);
    bool seen = false;
    program.view.onPump = [&](long) {
      if (std::exchange(seen, true)) return;
      for (int cell = 0; cell < kCellCount; ++cell) EXPECT_EQ(Shown(cell), kAllCandidates);
    };
    if (command == Button::CommandSaw) {
      SawIrregular();
    } else {
      program.main.Click(command);
    }
    program.view.onPump = nullptr;
    EXPECT_TRUE(seen);
  }
}

TEST_F(CommandsWhileSolving, AFillShowsOneBlackMarkInEveryCell) {
  SawIrregular();
  program.main.Click(Button::CommandGo);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(Display().Cell(cell).text, 0);
    EXPECT_EQ(Shown(cell), kAllCandidates);
    for (int digit = 1; digit <= kSide; ++digit) {
      EXPECT_EQ(Display().Mark(cell, digit).colour == kBlack, digit == State().WorkGrid[cell]);
    }
  }
}

TEST_F(CommandsWhileSolving, TheFootOfTheWindowTellsThatSolveOpensTheNewPuzzle) {
  EXPECT_EQ(Display().News(), "");
  SawIrregular();
  EXPECT_EQ(Display().News(), "Your game stays open; Solve opens the new puzzle");
  program.main.Click(Button::CommandGo);
  EXPECT_EQ(Display().News(), "Your game stays open; Solve opens the new puzzle");
  program.main.Click(Button::CommandConceal);
  EXPECT_THAT(Display().News(),
              testing::MatchesRegex("Saved as puzzle 2 in .*sds; Solve opens it"));
  program.main.Click(Button::CommandSolve);
  EXPECT_EQ(Display().News(), "");
}

TEST_F(CommandsWhileSolving, TheOldBoardGoesOnAfterANewPuzzleUntilRestart) {
  Left(kEmpty, 2);
  const PuzzleRecord board = State().PlayBoard;
  SawIrregular();
  program.main.Click(Button::CommandGo);
  program.main.Click(Button::CommandConceal);
  ASSERT_EQ(EnabledButtons(Display()), kPuzzleConcealed);
  EXPECT_EQ(State().PlayBoard, board);
  EXPECT_NE(State().SavedPuzzle, KnownPuzzle());
  program.main.Click(Button::CommandRestart);
  EXPECT_EQ(State().PlayBoard, State().SavedPuzzle);
}

// The givens are those of the saved puzzle: a cell that was a given of the old board may be empty
// in the new puzzle and can then be taken out.
TEST_F(CommandsWhileSolving, TheGivensAreThoseOfTheNewPuzzle) {
  SawIrregular();
  program.main.Click(Button::CommandGo);
  program.main.Click(Button::CommandConceal);
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int before = Board(cell);
    Middle(cell);
    EXPECT_EQ(Board(cell), State().SavedPuzzle.Board[cell] != 0 ? before : 0) << cell;
  }
}

TEST_F(CommandsWhileSolving, SolveOpensTheNewPuzzleOverTheOldOne) {
  Left(kEmpty, 2);
  SawIrregular();
  program.main.Click(Button::CommandGo);
  program.main.Click(Button::CommandConceal);
  program.main.Click(Button::CommandSolve);
  EXPECT_EQ(State().PlayBoard, State().SavedPuzzle);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(Display().Cell(cell).text, State().SavedPuzzle.Board[cell]);
    EXPECT_EQ(Shown(cell), Candidates(cell));
  }
}

TEST_F(CommandsWhileSolving, AFinishedBoardStaysFinished) {
  program.main.Click(Button::CommandSolution);
  SawIrregular();
  EXPECT_FALSE(BoardIsOpen());
  ExpectNothingHappens([&] { Left(kEmpty, 2); });
}

TEST_F(CommandsWhileSolving, APendingAssignmentOutlivesACommand) {
  Announce(40);
  SawIrregular();
  ExpectPending(true);
  program.main.Click(Button::CommandHint);
  ExpectPending(false);
}

}  // namespace
}  // namespace tessel
