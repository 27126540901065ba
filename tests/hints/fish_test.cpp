// X-Wing and SwordFish.
#include <gtest/gtest.h>

#include "shell/hint_techniques.h"
#include "tests/hints/mark_board.h"

namespace tessel {
namespace {

struct XWing : testing::Test, MarkBoard {
  HintTechniques techniques{state};
};
struct SwordFish : XWing {};

TEST_F(XWing, TwoRowsAndAThirdWithACandidateToLose) {
  Mark(InRow(1, {2, 6}), {4});
  Mark(InRow(5, {2, 6}), {4});
  Mark({CellAt(7, 6)}, {4});
  EXPECT_TRUE(techniques.XWing());
  EXPECT_EQ(Result(), (HintFields{.kind = 14, .digit = 4, .unit1 = 1, .unit2 = 5}));
}

TEST_F(XWing, WithoutAThirdRowColumnsAreSearched) {
  Mark(InRow(1, {2, 6}), {4});
  Mark(InRow(5, {2, 6}), {4});
  EXPECT_FALSE(techniques.XWing());
  EXPECT_EQ(Result(), HintFields{});
  Mark({CellAt(5, 8)}, {4});  // row F has a third one now: columns 3 and 7 are the pattern
  EXPECT_TRUE(techniques.XWing());
  EXPECT_EQ(Result(), (HintFields{.kind = 15, .digit = 4, .unit1 = 2, .unit2 = 6}));
}

TEST_F(XWing, RowsForAllDigitsComeBeforeColumns) {
  Mark(InRow(0, {0, 8}), {9});
  Mark(InRow(8, {0, 8}), {9});
  Mark({CellAt(4, 0)}, {9});
  Mark({CellAt(1, 1), CellAt(7, 1), CellAt(1, 7), CellAt(7, 7), CellAt(7, 4)}, {1});
  EXPECT_TRUE(techniques.XWing());
  EXPECT_EQ(Result(), (HintFields{.kind = 14, .digit = 9, .unit1 = 0, .unit2 = 8}));
}

TEST_F(XWing, LinesOfThreeCandidatesAreNone) {
  Mark(InRow(1, {2, 5, 6}), {4});
  Mark(InRow(5, {2, 5, 6}), {4});
  Mark(InRow(7, {2, 5}), {4});
  Mark(InRow(8, {6}), {4});
  EXPECT_FALSE(techniques.XWing());
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(SwordFish, ThreeEqualRowsAndAFourthWithACandidateToLose) {
  for (const int row : {0, 3, 8}) Mark(InRow(row, {0, 3, 7}), {2});
  Mark(InRow(5, {3, 5}), {2});
  EXPECT_TRUE(techniques.SwordFish());
  EXPECT_EQ(Result(), (HintFields{.kind = 16, .digit = 2, .unit1 = 0, .unit2 = 3, .unit3 = 8}));
}

// Deliberate: every one of the three lines must hold the digit at all three places.
TEST_F(SwordFish, RowWithTwoOfTheThreeColumnsIsNotRecognised) {
  Mark(InRow(0, {0, 3, 7}), {2});
  Mark(InRow(3, {0, 3, 7}), {2});
  Mark(InRow(8, {0, 3}), {2});
  Mark(InRow(5, {3, 5}), {2});
  EXPECT_FALSE(techniques.SwordFish());
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(SwordFish, WithoutAFourthRowItIsOfNoUse) {
  for (const int row : {0, 3, 8}) Mark(InRow(row, {0, 3, 7}), {2});
  EXPECT_FALSE(techniques.SwordFish());
  EXPECT_EQ(Result(), HintFields{});
}

TEST_F(SwordFish, RowsForAllDigitsComeBeforeColumns) {
  for (const int column : {1, 2, 5}) Mark(InColumn(column, {0, 4, 6}), {1});
  Mark({CellAt(4, 8)}, {1});
  EXPECT_TRUE(techniques.SwordFish());
  EXPECT_EQ(Result(), (HintFields{.kind = 17, .digit = 1, .unit1 = 1, .unit2 = 2, .unit3 = 5}));
  for (const int row : {2, 3, 7}) Mark(InRow(row, {0, 3, 7}), {9});
  Mark({CellAt(5, 3)}, {9});
  EXPECT_TRUE(techniques.SwordFish());
  EXPECT_EQ(Result(), (HintFields{.kind = 16, .digit = 9, .unit1 = 2, .unit2 = 3, .unit3 = 7}));
}

}  // namespace
}  // namespace tessel
