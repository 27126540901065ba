// What hints hold beside their sentence: cells, digits, houses and every elimination.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "hints/ladder.h"
#include "tests/hints/mark_board.h"
#include "tests/hints/recorded_boards.h"

namespace tessel {

void PrintTo(const Elimination& elimination, std::ostream* out) {
  *out << "cell " << elimination.cell << " digits " << elimination.digits;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct HintValues : testing::Test, MarkBoard {
  std::optional<Hint> First(const Technique& technique) const {
    return FirstHint(technique, {Layout::Regular(), state.PlayBoard.Board, state.Candidates});
  }
  std::vector<Hint> All(const Technique& technique) const {
    return AllHints(technique, {Layout::Regular(), state.PlayBoard.Board, state.Candidates});
  }
};

CellSet Cells(const CellList& list) {
  CellSet cells;
  for (const int cell : list) cells = cells | CellSet::Of(cell);
  return cells;
}

Elimination Gone(int row, int column, Digits digits) {
  return {CellAt(row, column), MaskOf(digits)};
}

TEST_F(HintValues, SinglesPlaceTheirDigit) {
  Mark({33}, {6});
  for (const Technique* technique : {&kNakedSingle, &kHiddenSingle}) {
    const auto hint = First(*technique);
    ASSERT_TRUE(hint) << technique->name;
    EXPECT_TRUE(hint->PlacesDigit());
    EXPECT_EQ(hint->cell, 33);
    EXPECT_EQ(hint->digit, 6);
    EXPECT_EQ(hint->cells, CellSet::Of(33));
    EXPECT_EQ(hint->digits, MaskOf({6}));
  }
  EXPECT_THAT(First(kNakedSingle)->houses, IsEmpty());
  const House row = Layout::Regular().HousesOf(HouseKind::kRow)[3];
  EXPECT_THAT(First(kHiddenSingle)->houses, ElementsAre(row));
}

TEST_F(HintValues, PointingCageTakesTheDigitFromEveryCellThatItPointsAt) {
  Mark(InRow(0, {0, 2}), {4});
  Mark({CellAt(0, 6), CellAt(0, 7), CellAt(5, 0)}, {4, 5});
  const auto hint = First(kPointingPair);
  ASSERT_TRUE(hint);
  EXPECT_EQ(hint->cell, 6);
  EXPECT_EQ(hint->cells, Cells(InRow(0, {0, 2})));
  EXPECT_THAT(hint->houses, ElementsAre(Layout::Regular().HousesOf(HouseKind::kCage)[0]));
  EXPECT_THAT(hint->eliminations, ElementsAre(Gone(0, 6, {4}), Gone(0, 7, {4})));
}

TEST_F(HintValues, BoxLineTakesTheDigitFromTheRestOfTheCage) {
  Mark(InRow(1, {3, 5}), {6});
  Mark({CellAt(0, 3), CellAt(2, 4)}, {6, 7});
  Mark({CellAt(0, 8), CellAt(2, 8)}, {6});
  const auto hint = First(kBoxLine);
  ASSERT_TRUE(hint);
  EXPECT_EQ(hint->cells, Cells(InRow(1, {3, 5})));
  const Layout& layout = Layout::Regular();
  EXPECT_THAT(hint->houses, ElementsAre(layout.HousesOf(HouseKind::kRow)[1],
                                        layout.HousesOf(HouseKind::kCage)[1]));
  EXPECT_THAT(hint->eliminations, ElementsAre(Gone(0, 3, {6}), Gone(2, 4, {6})));
}

TEST_F(HintValues, NakedTripleTakesEveryDigitOfItsUnion) {
  Mark({CellAt(3, 0)}, {1, 2});
  Mark({CellAt(3, 3)}, {2, 3});
  Mark({CellAt(3, 6)}, {1, 2, 3});
  Mark({CellAt(3, 1)}, {3, 8, 9});     // meets the union, though not the common digit
  Mark({CellAt(3, 7)}, {1, 2, 8, 9});  // shares the common digit: makes the triple useful
  const auto hint = First(kNakedTriple);
  ASSERT_TRUE(hint);
  EXPECT_EQ(hint->cells, Cells(InRow(3, {0, 3, 6})));
  EXPECT_EQ(hint->digits, MaskOf({1, 2, 3}));
  EXPECT_THAT(hint->eliminations, ElementsAre(Gone(3, 1, {3}), Gone(3, 7, {1, 2})));
}

TEST_F(HintValues, HiddenPairKeepsItsDigitsAlone) {
  OpenAllButRowG();
  Mark(InRow(6, {0}), {7, 9});
  Mark(InRow(6, {8}), {7});
  const auto hint = First(kHiddenPair);
  ASSERT_TRUE(hint);
  EXPECT_EQ(hint->digits, MaskOf({3, 4}));
  EXPECT_EQ(hint->cells, Cells(InRow(6, {0, 8})));
  EXPECT_THAT(hint->eliminations, ElementsAre(Gone(6, 0, {7, 9}), Gone(6, 8, {7})));
}

TEST_F(HintValues, FishTakesTheDigitFromTheCrossingLinesOutsideItsOwn) {
  for (const int column : {0, 3, 8}) Mark(InColumn(column, {0, 3, 7}), {2});
  Mark(InRow(3, {5, 6}), {2, 9});
  Mark({CellAt(7, 1), CellAt(5, 5)}, {2});
  const auto hint = First(kSwordFish);
  ASSERT_TRUE(hint);
  EXPECT_EQ(hint->code, HintCode::kSwordFishColumns);
  EXPECT_EQ(hint->cells.Count(), 9);
  const auto columns = Layout::Regular().HousesOf(HouseKind::kColumn);
  EXPECT_THAT(hint->houses, ElementsAre(columns[0], columns[3], columns[8]));
  EXPECT_THAT(hint->eliminations, ElementsAre(Gone(3, 5, {2}), Gone(3, 6, {2}), Gone(7, 1, {2})));
}

TEST_F(HintValues, EliminationsLeaveEveryOtherCandidate) {
  Mark({4}, {1, 2, 3});
  Mark({5}, {7});
  const MaskBoard left =
      WithoutEliminated(state.Candidates, std::array{Elimination{4, MaskOf({1, 3})}});
  EXPECT_EQ(left[4], MaskOf({2}));
  EXPECT_EQ(left[5], MaskOf({7}));
}

TEST_F(HintValues, AllHintsComeInTheOrderOfTheSearch) {
  Mark({30}, {4});
  Mark({5, 77}, {9});
  std::vector<int> cells;
  for (const Hint& hint : All(kNakedSingle)) cells.push_back(*hint.cell);
  EXPECT_THAT(cells, ElementsAre(5, 30, 77));
  EXPECT_EQ(First(kNakedSingle), All(kNakedSingle)[0]);
}

// Each hint says enough to be checked: its eliminations are candidates of the board, in increasing
// order of cells, and none is a digit of the solution.
void Check(const Hint& hint, const RecordedBoard& board) {
  if (hint.PlacesDigit()) {
    EXPECT_EQ(board.puzzle.Solution[*hint.cell], *hint.digit);
    return;
  }
  int last = -1;
  for (const auto& [cell, digits] : hint.eliminations) {
    EXPECT_GT(cell, last);
    EXPECT_NE(digits, 0);
    EXPECT_EQ(Without(digits, board.marks[cell]), 0);
    EXPECT_FALSE(Holds(digits, board.puzzle.Solution[cell]));
    last = cell;
  }
}

TEST(HintsOfRecordedBoards, AreTrueAndBeginWithTheFirst) {
  int hints = 0;
  for (const RecordedBoard& board : ReadRecordedBoards()) {
    const Layout layout = Layout::FromCages(board.puzzle.CageMap).value();
    const MarkedBoard marked{layout, board.puzzle.Board, board.marks};
    for (const Technique* technique : kLadder) {
      SCOPED_TRACE(board.purpose + ", " + technique->name);
      const std::vector<Hint> all = AllHints(*technique, marked);
      const auto first = FirstHint(*technique, marked);
      EXPECT_EQ(first.has_value(), !all.empty());
      if (all.empty() || !first) continue;
      EXPECT_EQ(*first, all[0]);
      for (const Hint& hint : all) Check(hint, board);
      hints += static_cast<int>(all.size());
    }
  }
  EXPECT_GT(hints, 500);
}

TEST(Ladder, RungsHaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const Technique* technique : kLadder) names.insert(technique->name);
  EXPECT_EQ(names.size(), kLadder.size());
}

}  // namespace
}  // namespace tessel
