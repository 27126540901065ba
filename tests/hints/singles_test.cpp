// Naked and hidden singles.
#include <gtest/gtest.h>

#include "shell/hint_techniques.h"
#include "tests/hints/mark_board.h"

namespace tessel {
namespace {

struct NakedSingle : testing::Test, MarkBoard {
  HintTechniques techniques{state};
};
struct HiddenSingle : NakedSingle {};

TEST_F(NakedSingle, LowestCellWins) {
  Mark({30}, {4});
  Mark({5}, {9});
  EXPECT_TRUE(techniques.NakedSingle());
  EXPECT_EQ(Result(), (HintFields{.kind = 1, .cell = 5}));
}

TEST_F(NakedSingle, FilledCellIsNeverReported) {
  for (int cell = 0; cell < kCellCount; ++cell) Place(cell, 1 + cell % 9);
  EXPECT_FALSE(techniques.NakedSingle());
  EXPECT_FALSE(techniques.HiddenSingle());
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(NakedSingle, CellsOfTwoMarksAreNone) {
  state.Candidates.fill(MaskOf({3, 7}));
  EXPECT_FALSE(techniques.NakedSingle());
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(NakedSingle, DoesNotConsultTheBoard) {
  state.PlayBoard.Board[17] = 5;
  Mark({17}, {5});
  EXPECT_TRUE(techniques.NakedSingle());
  EXPECT_EQ(Result(), (HintFields{.kind = 1, .cell = 17}));
}

TEST_F(HiddenSingle, DigitIsOutermostLoop) {
  Mark(InRow(0, {2, 5}), {3});
  Mark({7}, {5});
  EXPECT_TRUE(techniques.HiddenSingle());
  EXPECT_EQ(Result(), (HintFields{.kind = 3, .cell = 2, .unit2 = 2}));
}

TEST_F(HiddenSingle, CageOfALowerDigitComesBeforeARowOfAHigherOne) {
  Mark({10, 12, 15, 28, 30, 33}, {1});  // two in every row and column concerned
  Mark({CellAt(8, 8)}, {2});
  EXPECT_TRUE(techniques.HiddenSingle());
  EXPECT_EQ(Result(), (HintFields{.kind = 4, .cell = 10, .unit3 = 0}));
}

TEST_F(HiddenSingle, RowComesBeforeColumnAndCage) {
  Mark({40}, {6});
  EXPECT_TRUE(techniques.HiddenSingle());
  EXPECT_EQ(Result(), (HintFields{.kind = 2, .cell = 40, .unit1 = 4}));
}

// Deliberate: here the cages are counted 0..8, everywhere else 1..9.
TEST_F(HiddenSingle, CageIsCountedFromZero) {
  Mark({CellAt(6, 0), CellAt(6, 1), CellAt(7, 0), CellAt(7, 1)}, {8});
  Mark({CellAt(6, 7)}, {8});  // alone in cage 9, but not in its row and column
  Mark({CellAt(3, 7), CellAt(3, 8), CellAt(4, 8), CellAt(5, 8)}, {8});
  Mark({CellAt(4, 3), CellAt(5, 3)}, {8});
  EXPECT_TRUE(techniques.HiddenSingle());
  EXPECT_EQ(Result(), (HintFields{.kind = 4, .cell = CellAt(6, 7), .unit3 = 8}));
}

TEST_F(HiddenSingle, NothingFoundTouchesNothing) {
  state.Candidates.fill(kAllCandidates);
  const MaskBoard before = state.Candidates;
  EXPECT_FALSE(techniques.HiddenSingle());
  EXPECT_EQ(Result(), HintFields{});
  EXPECT_EQ(state.Candidates, before);
}

}  // namespace
}  // namespace tessel
