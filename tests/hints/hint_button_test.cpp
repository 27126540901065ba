// One click of the hint button: what it checks, in which order, and what it says.
#include "shell/hint_button.h"

#include <gtest/gtest.h>

#include "tests/hints/solving_program.h"

namespace tessel {
namespace {

constexpr char kNoMore[] = "No more logical hints";

struct HintClick : testing::Test, SolvingProgram {
  HintClick() { Play(EmptyPuzzle()); }

  void PutDigit(int cell, int digit) {
    State().PlayBoard.Board[cell] = static_cast<std::uint8_t>(digit);
    State().Candidates[cell] = 0;
  }
  int SolutionOf(int cell) { return State().PlayBoard.Solution[cell]; }
  void PutRightDigit(int cell) {
    PutDigit(cell, SolutionOf(cell));
    RemoveFromHouses(State(), cell, SolutionOf(cell), State().Candidates);
  }
  void AddMark(int cell, int digit) {
    State().Candidates[cell] = static_cast<Mask>(State().Candidates[cell] | BitOf(digit));
  }
  void RemoveMark(int cell, int digit) {
    State().Candidates[cell] = Without(State().Candidates[cell], BitOf(digit));
  }
};

TEST_F(HintClick, WrongDigitOfTheLowestCellIsReported) {
  PutDigit(40, 5);
  PutDigit(12, 5);
  EXPECT_EQ(Hint(), "Incorrect number 5 at cell B4 - Click that cell with the middle button");
  EXPECT_EQ(Red(), "B 4");
  EXPECT_EQ(sounds, std::vector<int>{8});
}

TEST_F(HintClick, NinthRowIsNamedJ) {
  PutDigit(72, 2);
  EXPECT_EQ(Hint(), "Incorrect number 2 at cell J1 - Click that cell with the middle button");
  EXPECT_EQ(Red(), "J 1");
}

TEST_F(HintClick, LostCandidateIsReportedThoughANakedSingleExists) {
  State().Candidates[0] = BitOf(SolutionOf(0));
  RemoveMark(62, SolutionOf(62));
  RemoveMark(33, SolutionOf(33));
  EXPECT_EQ(Hint(),
            "The correct number is no longer shown as a possibility at cell D7 - Click that cell "
            "with the middle button");
  EXPECT_EQ(Red(), "D 7");
  EXPECT_EQ(sounds, std::vector<int>{8});
}

TEST_F(HintClick, EmptyCellWithoutAnyMarkHasLostItsCandidate) {
  State().Candidates[80] = 0;
  EXPECT_EQ(Hint(),
            "The correct number is no longer shown as a possibility at cell J9 - Click that cell "
            "with the middle button");
}

// In the row, the column, the cage, and in the placed cell itself.
TEST_F(HintClick, StaleCandidateIsReportedByItsPlacedDigit) {
  for (const int stale : {CellAt(4, 0), CellAt(0, 4), CellAt(3, 3), CellAt(4, 4)}) {
    Play(EmptyPuzzle());
    PutRightDigit(CellAt(4, 4));
    AddMark(stale, 9);
    EXPECT_EQ(Hint(),
              "Since number 9 is located at cell E5, this number cannot longer be a candidate in "
              "that same row, column or cage")
        << stale;
    EXPECT_EQ(Red(), "E 5");
    EXPECT_EQ(sounds, std::vector<int>{9});
  }
}

TEST_F(HintClick, StaleCandidateOfTheLowestPlacedCellIsReported) {
  PutRightDigit(CellAt(8, 8));
  PutRightDigit(CellAt(0, 0));
  AddMark(CellAt(8, 0), SolutionOf(CellAt(8, 8)));
  AddMark(CellAt(0, 7), SolutionOf(CellAt(0, 0)));
  EXPECT_EQ(Hint(),
            "Since number 1 is located at cell A1, this number cannot longer be a candidate in "
            "that same row, column or cage");
}

TEST_F(HintClick, ChecksComeInTheirOrderAndBeforeTheTechniques) {
  PutRightDigit(CellAt(4, 4));
  State().Candidates[CellAt(8, 8)] = BitOf(SolutionOf(CellAt(8, 8)));
  AddMark(CellAt(4, 0), 9);
  RemoveMark(CellAt(7, 7), SolutionOf(CellAt(7, 7)));
  PutDigit(CellAt(6, 6), 1);

  EXPECT_TRUE(Hint().starts_with("Incorrect number 1 at cell G7"));
  PutDigit(CellAt(6, 6), 0);
  State().Candidates[CellAt(6, 6)] = kAllCandidates;
  EXPECT_TRUE(Hint().starts_with("The correct number is no longer shown"));
  AddMark(CellAt(7, 7), SolutionOf(CellAt(7, 7)));
  EXPECT_TRUE(Hint().starts_with("Since number 9 is located at cell E5"));
  RemoveMark(CellAt(4, 0), 9);
  EXPECT_EQ(Hint(), "Naked single at cell J9");
}

TEST_F(HintClick, NothingFoundIsSaidSilentlyWithEveryCaptionBlack) {
  PutDigit(12, 5);
  Hint();
  ASSERT_EQ(Red(), "B 4");
  PutDigit(12, 0);
  State().Candidates[12] = kAllCandidates;
  EXPECT_EQ(Hint(), kNoMore);
  EXPECT_EQ(Red(), "- -");
  EXPECT_TRUE(sounds.empty());
  EXPECT_EQ(ButtonCaption(), "Hint");
}

TEST_F(HintClick, EveryClickResetsTheCaptionsFirst) {
  State().Candidates[0] = BitOf(1);
  EXPECT_EQ(Hint(), "Naked single at cell A1");
  EXPECT_EQ(Red(), "A 1");
  State().Candidates[0] = kAllCandidates;
  State().Candidates[40] = BitOf(9);
  EXPECT_EQ(Hint(), "Naked single at cell E5");
  EXPECT_EQ(Red(), "E 5");
}

TEST_F(HintClick, PendingAssignmentComesBeforeEveryCheck) {
  PutDigit(12, 5);
  State().HintCell = 80;
  State().HintDigit = 7;
  State().AssignmentPending = Bool16::kTrue;
  EXPECT_EQ(Hint(), "Candidate 7 can savely be assigned to cell J9");
  EXPECT_EQ(sounds, std::vector<int>{7});
  EXPECT_EQ(State().AssignmentPending, Bool16::kFalse);
  EXPECT_EQ(ButtonCaption(), "Hint");
  EXPECT_TRUE(Hint().starts_with("Incorrect number 5 at cell B4"));
}

TEST_F(HintClick, PendingAssignmentLeavesTheOtherCaptionsRed) {
  PutDigit(12, 5);
  Hint();
  State().HintCell = 80;
  State().HintDigit = 7;
  State().AssignmentPending = Bool16::kTrue;
  Hint();
  EXPECT_EQ(Red(), "BJ 49");
}

TEST_F(HintClick, WithMarksOffWrongDigitsAreStillReported) {
  Tick(CheckBox::CheckPencilmarks, false);
  PutDigit(12, 5);
  EXPECT_TRUE(Hint().starts_with("Incorrect number 5 at cell B4"));
  EXPECT_EQ(sounds, std::vector<int>{8});
}

TEST_F(HintClick, WithMarksOffLostAndStaleCandidatesAreNoConcern) {
  Tick(CheckBox::CheckPencilmarks, false);
  PutRightDigit(CellAt(4, 4));
  AddMark(CellAt(4, 0), 9);
  RemoveMark(33, SolutionOf(33));
  EXPECT_EQ(Hint(), "A candidate can savely be assigned to cell E1") << "9 alone in its row";
}

TEST_F(HintClick, WithMarksOffNoNakedSingleIsNamed) {
  Tick(CheckBox::CheckPencilmarks, false);
  State().Candidates[33] = BitOf(SolutionOf(33));
  EXPECT_EQ(Hint(), "A candidate can savely be assigned to cell D7");
}

// Deliberate consequence of the narrow tests: five cells with four digits hold a useful quad.
TEST_F(HintClick, NakedQuintIsNeverSaidBecauseTheQuadComesFirst) {
  PuzzleRecord puzzle = EmptyPuzzle();
  puzzle.Solution[4] = 1;  // no solution at all: five cells of row A with the digits 1 to 4
  Play(puzzle);
  for (int cell = 0; cell < 5; ++cell) State().Candidates[cell] = 15;
  EXPECT_EQ(Hint(),
            "A naked quad is present in row A and leads to elimination in other cells of that row");
}

struct HintTexts : HintClick {
  // The sentences of the recorded boards whose purpose begins so.
  static std::vector<std::string> SaidFor(const std::string& purpose) {
    std::vector<std::string> said;
    SolvingProgram program;
    for (const RecordedBoard& board : ReadRecordedBoards()) {
      if (!board.purpose.starts_with(purpose)) continue;
      program.Play(board);
      said.push_back(program.Hint());
    }
    EXPECT_FALSE(said.empty());
    return said;
  }
};

TEST_F(HintTexts, ColumnSwordFishSaysAnAndRowSwordFishSaysA) {
  for (const std::string& text : SaidFor("kind 16")) {
    EXPECT_NE(text.find(" forms a SwordFish pattern in rows "), std::string::npos) << text;
  }
  for (const std::string& text : SaidFor("kind 17")) {
    EXPECT_NE(text.find(" forms an SwordFish pattern in columns "), std::string::npos) << text;
  }
}

TEST_F(HintTexts, HiddenSubsetsShareOneTailInEveryHouse) {
  for (const std::string purpose : {"kind 11", "kind 12", "kind 13"}) {
    for (const std::string& text : SaidFor(purpose)) {
      EXPECT_TRUE(text.ends_with(" and leads to elimination of candidates")) << text;
    }
  }
}

TEST_F(HintTexts, NakedSubsetsNameTheirHouseInTheTail) {
  EXPECT_TRUE(SaidFor("kind 8")[0].ends_with("in other cells of that row"));
  EXPECT_TRUE(SaidFor("kind 9")[0].ends_with("in other cells of that column"));
  EXPECT_TRUE(SaidFor("kind 10")[0].ends_with("in other cells of that cage"));
}

TEST_F(HintTexts, StaleCandidateCannotLongerBeOne) {
  PutRightDigit(CellAt(4, 4));
  AddMark(CellAt(4, 0), 9);
  EXPECT_NE(Hint().find("this number cannot longer be a candidate"), std::string::npos);
}

TEST_F(HintTexts, AssignmentsAreSavelyMade) {
  Tick(CheckBox::CheckPencilmarks, false);
  State().Candidates[0] = BitOf(1);
  EXPECT_EQ(Hint(), "A candidate can savely be assigned to cell A1");
  EXPECT_EQ(Hint(), "Candidate 1 can savely be assigned to cell A1");
}

}  // namespace
}  // namespace tessel
