// Pointing pairs and box-line.
#include <gtest/gtest.h>

#include "shell/hint_techniques.h"
#include "tests/hints/mark_board.h"

namespace tessel {
namespace {

struct PointingPair : testing::Test, MarkBoard {
  HintTechniques techniques{state};
};
struct BoxLine : PointingPair {};

TEST_F(PointingPair, CellInTheLineOfTheCagesCellsIsReported) {
  Mark(InRow(0, {0, 2}), {4});
  Mark({CellAt(0, 7), CellAt(5, 0)}, {4});
  EXPECT_TRUE(techniques.PointingPair());
  EXPECT_EQ(Result(), (HintFields{.kind = 5, .cell = 7, .digit = 4, .unit3 = 1}));
}

TEST_F(PointingPair, EveryCellOfTheCageMustBeSeen) {
  for (int cell = 0; cell < kCellCount; ++cell) Mark({cell}, {4});
  for (const int cell : state.CageCells[0]) Set({cell}, {});
  Set({CellAt(0, 0), CellAt(1, 1)}, {4});  // two rows, two columns: no cell sees both
  EXPECT_FALSE(techniques.PointingPair()) << Result();
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(PointingPair, LinesMayCrossAtTheTargetInIrregularCages) {
  // Cage 1 reaches around cell B2, which belongs to cage 2: its cells see B2 by row and by column.
  CageNumbers cages = Layout::Regular().Cages();
  std::swap(cages[CellAt(1, 1)], cages[CellAt(0, 3)]);
  SetLayout(state, Layout::FromCages(cages, Layout::Shape::kAny).value());
  Mark({CellAt(1, 0), CellAt(0, 1)}, {7});
  Mark({CellAt(1, 1), CellAt(1, 4), CellAt(4, 1), CellAt(4, 4)}, {7});
  EXPECT_TRUE(techniques.PointingPair());
  EXPECT_EQ(Result(), (HintFields{.kind = 5, .cell = CellAt(1, 1), .digit = 7, .unit3 = 1}));
}

TEST_F(PointingPair, CageOfASingleCellPointsAtAllItSees) {
  Mark({CellAt(4, 4)}, {2});
  Mark({CellAt(4, 8), CellAt(7, 4), CellAt(7, 8)}, {2});
  EXPECT_TRUE(techniques.PointingPair());
  EXPECT_EQ(Result(), (HintFields{.kind = 5, .cell = CellAt(4, 8), .digit = 2, .unit3 = 5}));
}

TEST_F(PointingPair, DigitThenCageThenLowestCell) {
  Mark(InRow(0, {0, 2, 8}), {9});  // digit 9 in cage 1
  Mark(InRow(8, {6, 7, 0}), {5});  // digit 5 in cages 7 and 9, each pointing at the other
  EXPECT_TRUE(techniques.PointingPair());
  EXPECT_EQ(Result(), (HintFields{.kind = 5, .cell = CellAt(8, 6), .digit = 5, .unit3 = 7}));
}

TEST_F(PointingPair, EmptyCageNeverPoints) {
  Mark(InRow(4, {4}), {1});
  EXPECT_FALSE(techniques.PointingPair());
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(BoxLine, CageHasCellsOutsideTheRow) {
  Mark(InRow(1, {3, 5}), {6});
  Mark({CellAt(2, 4)}, {6});
  Mark({CellAt(2, 8)}, {6});  // row C holds the digit in two cages
  EXPECT_TRUE(techniques.BoxLine());
  EXPECT_EQ(Result(), (HintFields{.kind = 6, .digit = 6, .unit1 = 1, .unit3 = 2}));
}

TEST_F(BoxLine, CageHasCellsOutsideTheColumn) {
  Mark({CellAt(4, 4), CellAt(5, 4)}, {6});
  Mark({CellAt(4, 3), CellAt(5, 5), CellAt(0, 3), CellAt(8, 5), CellAt(4, 8), CellAt(5, 8)}, {6});
  EXPECT_TRUE(techniques.BoxLine());
  EXPECT_EQ(Result(), (HintFields{.kind = 7, .digit = 6, .unit2 = 4, .unit3 = 5}));
}

TEST_F(BoxLine, ComparisonIsStrict) {
  Mark(InRow(1, {3, 5}), {6});
  Mark(InRow(4, {3, 5}), {6});
  EXPECT_FALSE(techniques.BoxLine());
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(BoxLine, LineWithoutTheDigitIsNoPattern) {
  // Every line that holds the digit holds it in two cages; the others hold it nowhere.
  Mark({CellAt(0, 0), CellAt(0, 8), CellAt(8, 0), CellAt(8, 8)}, {3});
  EXPECT_FALSE(techniques.BoxLine());
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(BoxLine, RowsForAllDigitsComeBeforeColumns) {
  Mark({CellAt(4, 4), CellAt(5, 4)}, {1});  // column 5, digit 1
  Mark({CellAt(4, 3), CellAt(5, 5), CellAt(0, 3), CellAt(8, 5), CellAt(4, 8), CellAt(5, 8)}, {1});
  Mark(InRow(7, {0, 1}), {9});  // row H, digit 9
  Mark({CellAt(6, 2), CellAt(6, 8)}, {9});
  const auto tail = InRow(0, {3, 8});
  Mark(tail, {1});
  Mark(InRow(8, {5, 8}), {1});
  EXPECT_TRUE(techniques.BoxLine());
  EXPECT_EQ(Result(), (HintFields{.kind = 6, .digit = 9, .unit1 = 7, .unit3 = 7}));
}

TEST_F(BoxLine, DigitComesBeforeRow) {
  Mark(InRow(0, {0, 1}), {8});
  Mark({CellAt(1, 2), CellAt(1, 8)}, {8});
  Mark(InRow(7, {0, 1}), {2});
  Mark({CellAt(6, 2), CellAt(6, 8)}, {2});
  EXPECT_TRUE(techniques.BoxLine());
  EXPECT_EQ(Result(), (HintFields{.kind = 6, .digit = 2, .unit1 = 7, .unit3 = 7}));
}

}  // namespace
}  // namespace tessel
