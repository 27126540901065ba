// The special pass: its techniques on SpecialMarks, and the announcement through the button.
#include "shell/special_pass.h"

#include <gtest/gtest.h>

#include "tests/hints/mark_board.h"
#include "tests/hints/solving_program.h"

namespace tessel {
namespace {

struct SpecialTechniques : testing::Test, MarkBoard {
  // Takes the marks set so far for the pass's own.
  void UseMarks() {
    state.SpecialMarks = state.Candidates;
    state.Candidates.fill(0);
  }
  bool Naked(int size) { return pass.SpNakedHidden(CountSubset{size}, Subset::kNaked); }
  bool Hidden(int size) { return pass.SpNakedHidden(CountSubset{size}, Subset::kHidden); }
  tessel::Mask At(int row, int column) const { return state.SpecialMarks[CellAt(row, column)]; }

  RecordingView view;
  FakeSoundPlayer player;
  Form form{view};
  Sounds sounds{state, player};
  SpecialPass pass{state, form, sounds};
};

TEST_F(SpecialTechniques, HiddenSingleSetsTheDigitToo) {
  Mark({40}, {6});
  UseMarks();
  EXPECT_TRUE(pass.SpHiddenSingle());
  EXPECT_EQ(Result(), (HintFields{.kind = 2, .cell = 40, .digit = 6, .unit1 = 4}));
}

TEST_F(SpecialTechniques, NakedSingleSetsKindCellAndDigit) {
  Mark({33}, {6});
  Mark({41}, {1});
  UseMarks();
  EXPECT_TRUE(pass.SpNakedSingle());
  EXPECT_EQ(Result(), (HintFields{.kind = 1, .cell = 33, .digit = 6}));
}

// Deliberate: the digit is the square root of the mask, rounded.
TEST_F(SpecialTechniques, NakedSingleTakesTheRoundedSquareRootForTheDigit) {
  constexpr std::array<int, 9> kNamed{1, 1, 2, 3, 4, 6, 8, 11, 16};
  for (int digit = 1; digit <= 9; ++digit) {
    state.SpecialMarks.fill(0);
    state.SpecialMarks[20] = BitOf(digit);
    EXPECT_TRUE(pass.SpNakedSingle());
    EXPECT_EQ(state.HintDigit, kNamed[digit - 1]) << digit;
  }
}

TEST_F(SpecialTechniques, PointingPairClearsOneMarkACall) {
  Mark(InRow(0, {0, 2}), {4});
  Mark(InRow(0, {6, 7}), {4, 5});
  UseMarks();
  EXPECT_TRUE(pass.SpPointingPair());
  EXPECT_EQ(At(0, 6), MaskOf({5}));
  EXPECT_EQ(At(0, 7), MaskOf({4, 5}));
  EXPECT_TRUE(pass.SpPointingPair());
  EXPECT_EQ(At(0, 7), MaskOf({5}));
  EXPECT_EQ(Result(), HintFields{}) << "eliminations are not reported";
}

TEST_F(SpecialTechniques, BoxLineClearsTheCageOutsideTheLineAtOnce) {
  Mark(InRow(1, {3, 5}), {6});
  Mark({CellAt(0, 3), CellAt(2, 4), CellAt(2, 5)}, {6, 7});
  Mark({CellAt(0, 8), CellAt(2, 8)}, {6});
  UseMarks();
  EXPECT_TRUE(pass.SpBoxLine());
  EXPECT_EQ(At(0, 3), MaskOf({7}));
  EXPECT_EQ(At(2, 4), MaskOf({7}));
  EXPECT_EQ(At(2, 5), MaskOf({7}));
  EXPECT_EQ(At(1, 3), MaskOf({6}));
  EXPECT_EQ(At(0, 8), MaskOf({6}));
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(SpecialTechniques, NakedSubsetClearsTheLowestPositionThatChanges) {
  Mark(InRow(3, {2, 6}), {1, 2});
  Mark({CellAt(3, 0)}, {5, 6, 7});
  Mark({CellAt(3, 4)}, {1, 5, 6, 7});
  Mark({CellAt(3, 8)}, {1, 2, 8, 9, 3});
  UseMarks();
  EXPECT_TRUE(Naked(2));
  EXPECT_EQ(At(3, 4), MaskOf({5, 6, 7}));
  EXPECT_EQ(At(3, 8), MaskOf({1, 2, 3, 8, 9}));
  EXPECT_TRUE(Naked(2));
  EXPECT_EQ(At(3, 8), MaskOf({3, 8, 9}));
  EXPECT_FALSE(Naked(2)) << "nothing is left to clear";
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(SpecialTechniques, NakedTripleClearsItsWholeUnionFromTheLowestCellThatMeetsIt) {
  Mark({CellAt(3, 0)}, {1, 2});
  Mark({CellAt(3, 3)}, {2, 3});
  Mark({CellAt(3, 6)}, {1, 2, 3});
  Mark({CellAt(3, 1)}, {3, 8, 9});     // meets the union, though not the common digit
  Mark({CellAt(3, 7)}, {1, 2, 8, 9});  // shares the common digit: makes the triple useful
  UseMarks();
  EXPECT_TRUE(Naked(3));
  EXPECT_EQ(At(3, 1), MaskOf({8, 9}));
  EXPECT_EQ(At(3, 7), MaskOf({1, 2, 8, 9}));
}

// Deliberate: usefulness is tested as narrowly as in the ladder.
TEST_F(SpecialTechniques, NakedTripleWithoutACommonDigitClearsNothing) {
  Mark({CellAt(3, 0)}, {1, 2});
  Mark({CellAt(3, 3)}, {2, 3});
  Mark({CellAt(3, 6)}, {1, 3});
  Mark(InRow(3, {1, 4, 7}), {1, 2, 3, 8, 9});
  UseMarks();
  const MaskBoard before = state.SpecialMarks;
  EXPECT_FALSE(Naked(3));
  EXPECT_EQ(state.SpecialMarks, before);
}

TEST_F(SpecialTechniques, HiddenSubsetLeavesOneCellItsDigitsOnly) {
  OpenAllButRowG();
  Mark(InRow(6, {0, 8}), {7});
  UseMarks();
  EXPECT_TRUE(Hidden(2));
  EXPECT_EQ(At(6, 0), MaskOf({3, 4}));
  EXPECT_EQ(At(6, 8), MaskOf({3, 4, 7}));
  EXPECT_TRUE(Hidden(2));
  EXPECT_EQ(At(6, 8), MaskOf({3, 4}));
  EXPECT_FALSE(Hidden(2));
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(SpecialTechniques, BoardTellsWhichCellsAreEmptyAndWhichDigitsPlaced) {
  OpenAllButRowG();
  Set(InRow(6, {0, 8}), {1, 2, 5});  // a hidden pair of 1 and 2, were they not placed
  UseMarks();
  const MaskBoard before = state.SpecialMarks;
  EXPECT_FALSE(Hidden(2));
  EXPECT_EQ(state.SpecialMarks, before);
  state.PlayBoard.Board[CellAt(6, 2)] = 0;
  state.PlayBoard.Board[CellAt(6, 3)] = 0;
  EXPECT_TRUE(Hidden(2));
  EXPECT_EQ(At(6, 0), MaskOf({1, 2}));
}

TEST_F(SpecialTechniques, OtherSizesFindNothing) {
  for (int cell = 0; cell < kCellCount; ++cell) Mark({cell}, {1, 2, 3, 4});
  UseMarks();
  for (const int size : {0, 1, 6, 9}) EXPECT_FALSE(Naked(size)) << size;
  for (const int size : {0, 1, 4, 5, 9}) EXPECT_FALSE(Hidden(size)) << size;
}

struct SpecialClick : testing::Test, SolvingProgram {
  SpecialClick() {
    Play(EmptyPuzzle());
    Tick(CheckBox::CheckPencilmarks, false);
  }
};

TEST_F(SpecialClick, AnnouncesTheCellAndRevealsTheDigitOnTheNextClick) {
  for (int column = 0; column < 8; ++column) {
    State().Candidates[CellAt(8, column)] = MaskOf({1, 2, 3, 4, 5, 6, 7, 9});
  }
  EXPECT_EQ(Hint(), "A candidate can savely be assigned to cell J9");
  EXPECT_EQ(sounds, std::vector<int>{7});
  EXPECT_EQ(Red(), "J 9");
  EXPECT_EQ(ButtonCaption(), "Show Me");
  EXPECT_EQ(State().AssignmentPending, Bool16::kTrue);

  EXPECT_EQ(Hint(), "Candidate 8 can savely be assigned to cell J9");
  EXPECT_EQ(sounds, std::vector<int>{7});
  EXPECT_EQ(Red(), "J 9");
  EXPECT_EQ(ButtonCaption(), "Hint");
  EXPECT_EQ(State().AssignmentPending, Bool16::kFalse);

  EXPECT_EQ(Hint(), "A candidate can savely be assigned to cell J9") << "a fresh search";
}

// Deliberate: a cell that holds only 3 is revealed as 2, the rounded square root of its mask.
TEST_F(SpecialClick, RevealsTheRoundedSquareRoot) {
  State().Candidates[33] = MaskOf({3});
  EXPECT_EQ(Hint(), "A candidate can savely be assigned to cell D7");
  EXPECT_EQ(Hint(), "Candidate 2 can savely be assigned to cell D7");
  State().Candidates[33] = MaskOf({9});
  EXPECT_EQ(Hint(), "A candidate can savely be assigned to cell D7");
  EXPECT_EQ(Hint(), "Candidate 16 can savely be assigned to cell D7");
}

// Deliberate: the reverse of the ladder's order.
TEST_F(SpecialClick, HiddenSingleComesBeforeNakedSingle) {
  State().Candidates[0] = MaskOf({1});
  for (int column = 0; column < 8; ++column) {
    State().Candidates[CellAt(8, column)] = MaskOf({1, 2, 3, 4, 5, 6, 7, 9});
  }
  EXPECT_EQ(Hint(), "A candidate can savely be assigned to cell J9");
  EXPECT_EQ(Hint(), "Candidate 8 can savely be assigned to cell J9");
  Tick(CheckBox::CheckPencilmarks, true);
  EXPECT_EQ(Hint(), "Naked single at cell A1");
}

TEST_F(SpecialClick, NothingToFindIsSaidSilently) {
  EXPECT_EQ(Hint(), "No more logical hints");
  EXPECT_TRUE(sounds.empty());
  EXPECT_EQ(Red(), "- -");
  EXPECT_EQ(ButtonCaption(), "Hint");
  EXPECT_EQ(State().AssignmentPending, Bool16::kFalse);
}

TEST_F(SpecialClick, EliminatesUntilItMeetsASingle) {
  // Row A: a pair, a cell that the pair leaves with 6 alone; no other single.
  State().Candidates[0] = MaskOf({1, 2});
  State().Candidates[4] = MaskOf({1, 2});
  State().Candidates[8] = MaskOf({1, 2, 6});
  EXPECT_EQ(Hint(), "A candidate can savely be assigned to cell A9");
  EXPECT_EQ(sounds, std::vector<int>{7}) << "the eliminations are silent";
  EXPECT_EQ(State().SpecialMarks[8], MaskOf({6}));
  EXPECT_EQ(Hint(), "Candidate 6 can savely be assigned to cell A9");
}

TEST_F(SpecialClick, PlayersMarksAndBoardAreTheSameBeforeAndAfter) {
  int announced = 0;
  int workedOn = 0;
  for (const RecordedBoard& board : ReadRecordedBoards()) {
    Play(board);
    announced += Hint().starts_with("A candidate can savely") ? 1 : 0;
    workedOn += State().SpecialMarks == board.marks ? 0 : 1;
    EXPECT_EQ(State().Candidates, board.marks) << board.text;
    EXPECT_EQ(State().PlayBoard, board.puzzle) << board.text;
  }
  EXPECT_GT(announced, 10);
  EXPECT_GT(workedOn, 10);
}

TEST_F(SpecialClick, MarksAreTrustedAsTheyStand) {
  State().Candidates[0] = MaskOf({6});  // the solution has 1 there
  EXPECT_EQ(Hint(), "A candidate can savely be assigned to cell A1");
  EXPECT_EQ(Hint(), "Candidate 6 can savely be assigned to cell A1");
}

TEST_F(SpecialClick, TickingTheBoxOrRestartingEndsTheAnnouncement) {
  State().Candidates[33] = MaskOf({3});
  Hint();
  Tick(CheckBox::CheckPencilmarks, true);
  EXPECT_EQ(ButtonCaption(), "Hint");
  EXPECT_EQ(Hint(),
            "The correct number is no longer shown as a possibility at cell D7 - Click that "
            "cell with the middle button");
  Tick(CheckBox::CheckPencilmarks, false);
  Hint();
  EXPECT_EQ(ButtonCaption(), "Show Me");
  main.Click(Button::CommandRestart);
  EXPECT_EQ(ButtonCaption(), "Hint");
  EXPECT_EQ(State().AssignmentPending, Bool16::kFalse);
}

}  // namespace
}  // namespace tessel
