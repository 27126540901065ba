// Naked and hidden subsets.
#include <gtest/gtest.h>

#include "shell/hint_techniques.h"
#include "tests/hints/mark_board.h"

namespace tessel {
namespace {

struct Subsets : testing::Test, MarkBoard {
  bool Naked(int size) { return techniques.NakedHidden(Subset::kNaked, CountSubset{size}); }
  bool Hidden(int size) { return techniques.NakedHidden(Subset::kHidden, CountSubset{size}); }

  HintTechniques techniques{state};
};
struct NakedSubset : Subsets {};
struct HiddenSubset : Subsets {};

TEST_F(NakedSubset, PairWithItsDigitsElsewhereInTheRow) {
  Mark(InRow(0, {1, 6}), {1, 2});
  Mark({CellAt(0, 4)}, {2, 5, 9});
  EXPECT_TRUE(Naked(2));
  EXPECT_EQ(Result(), (HintFields{.kind = 8, .unit1 = 0}));
}

TEST_F(NakedSubset, PairOfNoUseInItsRowMayBeOfUseInItsCage) {
  Mark(InRow(0, {0, 1}), {1, 2});
  Mark({CellAt(2, 2)}, {1, 5, 9});
  EXPECT_TRUE(Naked(2));
  EXPECT_EQ(Result(), (HintFields{.kind = 10, .unit3 = 1}));
}

TEST_F(NakedSubset, PairOfNoUseInItsRowMayBeOfUseInItsColumn) {
  Mark(InRow(0, {3, 4}), {1, 2});              // a pair, of no use anywhere
  Mark({CellAt(2, 8), CellAt(7, 8)}, {6, 7});  // a pair of column 9
  Mark({CellAt(4, 8), CellAt(4, 0)}, {7, 8, 9});
  EXPECT_TRUE(Naked(2));
  EXPECT_EQ(Result(), (HintFields{.kind = 9, .unit2 = 8}));
}

TEST_F(NakedSubset, PairWithoutItsDigitsElsewhereIsOfNoUse) {
  Mark(InRow(0, {1, 6}), {1, 2});
  Mark(InRow(0, {2, 3, 4}), {5, 6, 7, 8});
  EXPECT_FALSE(Naked(2));
  EXPECT_EQ(Result(), HintFields{});
}

// Deliberate: a subset counts only when another cell shares a digit that all its cells hold.
TEST_F(NakedSubset, TripleWithoutACommonDigitIsNeverReported) {
  Mark({CellAt(3, 0)}, {1, 2});
  Mark({CellAt(3, 3)}, {2, 3});
  Mark({CellAt(3, 6)}, {1, 3});
  Mark(InRow(3, {1, 4, 7}), {1, 2, 3, 8, 9});
  EXPECT_FALSE(Naked(3));
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(NakedSubset, TripleWithACommonDigitIsReported) {
  Mark({CellAt(3, 0)}, {1, 2});
  Mark({CellAt(3, 3)}, {2, 3});
  Mark({CellAt(3, 6)}, {1, 2, 3});
  Mark({CellAt(3, 7)}, {2, 8, 9});
  EXPECT_TRUE(Naked(3));
  EXPECT_EQ(Result(), (HintFields{.kind = 8, .unit1 = 3}));
}

TEST_F(NakedSubset, DigitThatOnlySomeOfItsCellsHoldIsNoUse) {
  Mark({CellAt(3, 0)}, {1, 2});
  Mark({CellAt(3, 3)}, {2, 3});
  Mark({CellAt(3, 6)}, {1, 2, 3});
  Mark({CellAt(3, 7)}, {1, 3, 8, 9});
  EXPECT_FALSE(Naked(3));
}

TEST_F(NakedSubset, QuadIsFourCellsOfFourDigits) {
  Mark({CellAt(0, 5)}, {4, 5});
  Mark({CellAt(2, 5)}, {4, 6});
  Mark({CellAt(4, 5)}, {4, 7});
  Mark({CellAt(6, 5)}, {4, 5, 6, 7});
  Mark({CellAt(8, 5)}, {1, 4, 9});
  EXPECT_FALSE(Naked(2));
  EXPECT_FALSE(Naked(3));
  EXPECT_TRUE(Naked(4));
  EXPECT_EQ(Result(), (HintFields{.kind = 9, .unit2 = 5}));
}

TEST_F(NakedSubset, CellsMustBeEmpty) {
  Mark(InRow(0, {1, 6}), {1, 2});
  Mark({CellAt(0, 4)}, {2, 5, 9});
  state.PlayBoard.Board[CellAt(0, 6)] = 1;
  EXPECT_FALSE(Naked(2));
}

TEST_F(NakedSubset, EmptyCellWithoutMarksCanBelongToOne) {
  Mark({CellAt(0, 1)}, {1, 2});
  EXPECT_FALSE(Naked(2)) << "the union has two digits, but no cell shares a common one";
}

// Deliberate: five cells are compared with four digits, which no consistent board has.
TEST_F(NakedSubset, QuintIsFiveCellsOfFourDigits) {
  Mark(InRow(5, {0, 2, 4, 6, 8}), {1, 2, 3, 4});
  Mark({CellAt(5, 7)}, {1, 9});
  EXPECT_TRUE(Naked(5));
  EXPECT_EQ(Result(), (HintFields{.kind = 8, .unit1 = 5}));
}

TEST_F(NakedSubset, QuintsInColumnsAndCagesAreComparedWithFourDigitsToo) {
  Mark(InColumn(5, {0, 2, 4, 6, 8}), {1, 2, 3, 4});
  Mark({CellAt(7, 5)}, {1, 9});
  EXPECT_TRUE(Naked(5));
  EXPECT_EQ(Result(), (HintFields{.kind = 9, .unit2 = 5}));
  state.Candidates.fill(0);
  MakeStale(state);
  for (const int k : {0, 2, 4, 6, 8}) Mark({state.CageCells[5][k]}, {1, 2, 3, 4});
  Mark({state.CageCells[5][7]}, {1, 9});
  EXPECT_TRUE(Naked(5));
  EXPECT_EQ(Result(), (HintFields{.kind = 10, .unit3 = 6}));
}

TEST_F(NakedSubset, QuintOfFiveDigitsIsNeverReported) {
  Mark(InRow(5, {0, 2, 4, 6, 8}), {1, 2, 3, 4, 5});
  Mark({CellAt(5, 7)}, {1, 9});
  EXPECT_FALSE(Naked(5));
  EXPECT_EQ(Result(), HintFields{});
}

// Deliberate consequence: a quint's five cells contain four of the same four digits, and quads are
// asked for first.
TEST_F(NakedSubset, QuintAlwaysHoldsAQuad) {
  const CellList cells = InRow(5, {0, 2, 4, 6, 8});
  int quints = 0;
  for (int pattern = 0; pattern < 8 * 8 * 8 * 8 * 8; ++pattern) {
    for (int i = 0, rest = pattern; i < 5; ++i, rest /= 8) {
      state.Candidates[cells[i]] = static_cast<tessel::Mask>(1 | (rest % 8) << 1);
    }
    state.Candidates[CellAt(5, 7)] = MaskOf({1, 9});
    if (!Naked(5)) continue;
    ++quints;
    ASSERT_TRUE(Naked(4)) << pattern;
  }
  EXPECT_GT(quints, 10'000);
}

TEST_F(HiddenSubset, PairWithoutOtherCandidatesIsOfNoUse) {
  OpenAllButRowG();
  EXPECT_FALSE(Hidden(2));
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(HiddenSubset, PairWithAnotherCandidateIsOfUse) {
  OpenAllButRowG();
  Mark({CellAt(6, 8)}, {7});
  EXPECT_TRUE(Hidden(2));
  EXPECT_EQ(Result(), (HintFields{.kind = 11, .unit1 = 6}));
}

TEST_F(HiddenSubset, DigitPlacedInTheHouseIsSkipped) {
  OpenAllButRowG();
  Set(InRow(6, {0, 8}), {1, 2, 5});  // a hidden pair of 1 and 2, were they not placed
  EXPECT_FALSE(Hidden(2));
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(HiddenSubset, MarksOfFilledCellsDoNotCount) {
  OpenAllButRowG();
  Mark({CellAt(6, 8)}, {7});
  Mark({CellAt(6, 2)}, {3, 4});
  EXPECT_TRUE(Hidden(2));
  EXPECT_EQ(Result(), (HintFields{.kind = 11, .unit1 = 6}));
}

TEST_F(HiddenSubset, TripleNeedsThreeCells) {
  Mark({CellAt(0, 0)}, {1, 2, 9});
  Mark({CellAt(4, 0)}, {2, 3});
  Mark({CellAt(8, 0)}, {1, 3});
  Mark({CellAt(2, 0), CellAt(3, 0)}, {7, 8, 9});
  EXPECT_FALSE(Hidden(4));
  EXPECT_TRUE(Hidden(3));
  EXPECT_EQ(Result(), (HintFields{.kind = 12, .unit2 = 0}));
}

TEST_F(HiddenSubset, CageIsCountedFromOne) {
  state.Candidates.fill(kAllCandidates);
  for (const int cell : state.CageCells[8]) Set({cell}, {3, 4, 5, 6, 7, 8, 9});
  Mark({CellAt(6, 6), CellAt(8, 8)}, {1, 2});
  EXPECT_TRUE(Hidden(2));
  EXPECT_EQ(Result(), (HintFields{.kind = 13, .unit3 = 9}));
}

TEST_F(Subsets, RowsThenColumnsThenCages) {
  for (const int cell : {CellAt(4, 4), CellAt(4, 5)}) Mark({cell}, {1, 2});
  Mark({CellAt(4, 3)}, {1, 5, 6, 7});  // of use in row E and in cage 5
  for (const int cell : {CellAt(7, 0), CellAt(8, 0)}) Mark({cell}, {1, 2});
  Mark({CellAt(6, 0)}, {1, 5, 6, 7});  // in column 1 and cage 7
  EXPECT_TRUE(Naked(2));
  EXPECT_EQ(Result(), (HintFields{.kind = 8, .unit1 = 4}));
  state.Candidates[CellAt(4, 4)] = 0;
  MakeStale(state);
  EXPECT_TRUE(Naked(2));
  EXPECT_EQ(Result(), (HintFields{.kind = 9, .unit2 = 0}));
}

TEST_F(HiddenSubset, QuadIsNotLookedFor) {
  state.Candidates.fill(kAllCandidates);
  Set(InRow(0, {4, 5, 6, 7, 8}), {5, 6, 7, 8, 9});  // 1 to 4 are left to the first four cells
  EXPECT_FALSE(Hidden(4));
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(Subsets, OtherSizesFindNothing) {
  for (int cell = 0; cell < kCellCount; ++cell) Mark({cell}, {1, 2, 3, 4});
  for (const int size : {-1, 0, 1, 6, 7, 9}) EXPECT_FALSE(Naked(size)) << size;
  for (const int size : {-1, 0, 1, 4, 5, 6, 9}) EXPECT_FALSE(Hidden(size)) << size;
  EXPECT_EQ(Result(), HintFields{});
}

}  // namespace
}  // namespace tessel
