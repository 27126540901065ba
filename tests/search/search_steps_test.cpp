#include <gtest/gtest.h>

#include "tests/oracle/search/samples.h"
#include "tests/search/search_rig.h"

namespace tessel {
namespace {

constexpr std::int16_t kFirstOf9 = 0b111111110;  // all of a house's bits but the first cell's

// An empty regular board; the cells stand in the order 80..0.
struct SearchSteps : testing::Test {
  SearchSteps() {
    PerCell<std::int16_t> order;
    for (int i = 0; i < kCellCount; ++i) order[i] = static_cast<std::int16_t>(80 - i);
    rig.search.StartEmpty(order);
  }
  SearchLevel& Top() { return rig.Top(); }
  // Places the digit as a trial in the cell, which is swapped to the last of the positions 0..ptr.
  void Try(int cell, int digit, int ptr) {
    auto& order = Top().Order;
    std::swap(*std::find(order.begin(), order.end(), cell), order[ptr]);
    Top().Digit[cell] = static_cast<std::int16_t>(digit);
    rig.search.DLXRemoveCandidates(cell, digit, ptr - 1);
  }
  // Fills the cell so that it lies above all positions in question.
  void FillAside(int cell, int digit, int ptr) {
    auto& order = Top().Order;
    std::swap(*std::find(order.begin(), order.end(), cell), order[ptr]);
    Top().Digit[cell] = static_cast<std::int16_t>(digit);
  }

  SearchRig rig;
};

TEST_F(SearchSteps, StartsWithNothingPlaced) {
  EXPECT_EQ(rig.probe.Depth(), 0u);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(Top().Digit[cell], 0);
    EXPECT_EQ(Top().Candidates[cell], kAllCandidates);
    EXPECT_EQ(Top().LastChoice[cell], 0);
  }
  EXPECT_EQ(Top().UndoCount, 0);
}

TEST_F(SearchSteps, NakedSingleIsTheFirstByPositionNotByCell) {
  Top().Candidates[3] = BitOf(4);
  Top().Candidates[70] = BitOf(9);
  EXPECT_TRUE(rig.search.DLXNakedSingle(80));
  EXPECT_EQ(Top().Digit[70], 9);
  EXPECT_EQ(Top().Digit[3], 0);
}

TEST_F(SearchSteps, NakedSingleMovesToTheEndOfThePositions) {
  Top().Candidates[70] = BitOf(9);
  ASSERT_TRUE(rig.search.DLXNakedSingle(80));
  EXPECT_EQ(Top().Order[80], 70);
  EXPECT_EQ(Top().Order[10], 0);  // the cell that stood at the end takes its place
  EXPECT_EQ(Top().Candidates[70], 0);
}

TEST_F(SearchSteps, NakedSingleIsPlacedBesideADeadEnd) {
  Top().Candidates[70] = 0;
  Top().Candidates[3] = BitOf(4);
  EXPECT_TRUE(rig.search.DLXNakedSingle(80));
  EXPECT_EQ(Top().Digit[3], 4);
}

TEST_F(SearchSteps, NakedSingleTakesItsDigitFromUnfilledPeersWithoutALog) {
  FillAside(1, 5, 80);
  Top().Candidates[0] = BitOf(9);
  ASSERT_TRUE(rig.search.DLXNakedSingle(79));
  EXPECT_EQ(Top().Order[79], 0);
  int without = 0;
  for (int cell = 1; cell < kCellCount; ++cell) without += !Holds(Top().Candidates[cell], 9);
  EXPECT_EQ(without, 19);  // 20 peers, of which one is filled
  EXPECT_TRUE(Holds(Top().Candidates[1], 9));
  EXPECT_EQ(Top().UndoCount, 0);
}

TEST_F(SearchSteps, NakedSingleIsNotLookedForAboveThePositions) {
  FillAside(7, 5, 80);
  Top().Candidates[7] = BitOf(9);
  const SearchLevel before = Top();
  EXPECT_FALSE(rig.search.DLXNakedSingle(79));
  EXPECT_EQ(Top().Digit, before.Digit);
  EXPECT_EQ(Top().Order, before.Order);
  EXPECT_EQ(OnBoard(Top().Candidates), OnBoard(before.Candidates));
}

TEST_F(SearchSteps, RemovalIsLoggedOnceInTheRowElseTheColumnElseTheCage) {
  Try(0, 3, 80);
  EXPECT_EQ(Top().UndoCount, 1);
  EXPECT_EQ(Top().UndoCell[1], 0);
  EXPECT_EQ(Top().UndoDigit[1], 3);
  EXPECT_EQ(Top().UndoRowMask[1], kFirstOf9);
  EXPECT_EQ(Top().UndoColumnMask[1], kFirstOf9);
  EXPECT_EQ(Top().UndoCageMask[1], 0b110110000);  // 10, 11, 19, 20: in neither row nor column
  int without = 0;
  for (int cell = 0; cell < kCellCount; ++cell) without += !Holds(Top().Candidates[cell], 3);
  EXPECT_EQ(without, 20);
  EXPECT_EQ(Top().Candidates[0], kAllCandidates);  // a trial keeps its own candidates
}

TEST_F(SearchSteps, CellsWithoutTheCandidateAreNotLogged) {
  Top().Candidates[5] = Without(kAllCandidates, BitOf(3));
  Top().Candidates[20] = Without(kAllCandidates, BitOf(3));
  Try(0, 3, 80);
  EXPECT_EQ(Top().UndoRowMask[1], kFirstOf9 & ~(1 << 5));
  EXPECT_EQ(Top().UndoCageMask[1], 0b010110000);
  rig.search.DLXUndo();
  EXPECT_FALSE(Holds(Top().Candidates[5], 3));
  EXPECT_FALSE(Holds(Top().Candidates[20], 3));
}

TEST_F(SearchSteps, CellsAboveTheRemovePositionKeepTheDigit) {
  FillAside(8, 4, 80);
  FillAside(72, 5, 79);
  Try(0, 3, 78);
  EXPECT_EQ(Top().UndoRowMask[1], kFirstOf9 & ~(1 << 8));
  EXPECT_EQ(Top().UndoColumnMask[1], kFirstOf9 & ~(1 << 8));
  EXPECT_TRUE(Holds(Top().Candidates[8], 3));
  EXPECT_TRUE(Holds(Top().Candidates[72], 3));
}

TEST_F(SearchSteps, RemovePositionMinus1LogsAnEmptyEntry) {
  for (int cell = 1; cell < kCellCount; ++cell) Top().Digit[cell] = 1;
  Top().UndoRowMask[1] = Top().UndoColumnMask[1] = Top().UndoCageMask[1] = 77;
  Try(0, 3, 0);
  EXPECT_EQ(Top().UndoCount, 1);
  EXPECT_EQ(Top().UndoRowMask[1], 0);
  EXPECT_EQ(Top().UndoColumnMask[1], 0);
  EXPECT_EQ(Top().UndoCageMask[1], 0);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(Top().Candidates[cell], kAllCandidates);
  }
}

TEST_F(SearchSteps, UndoGivesBackWhatTheNewestEntryTook) {
  Try(0, 3, 80);
  const MaskBoard afterFirst = OnBoard(Top().Candidates);
  Try(44, 3, 79);
  Try(13, 8, 78);
  rig.search.DLXUndo();
  rig.search.DLXUndo();
  EXPECT_EQ(Top().UndoCount, 1);
  EXPECT_EQ(OnBoard(Top().Candidates), afterFirst);
  EXPECT_EQ(Top().Digit[13], 0);
  EXPECT_EQ(Top().Digit[44], 0);
  EXPECT_EQ(Top().Digit[0], 3);
  rig.search.DLXUndo();
  EXPECT_EQ(Top().Digit[0], 0);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(Top().Candidates[cell], kAllCandidates);
  }
}

// Proceeds until a trial level stands on two others.
class UntilTheThirdTrialLevel final : public SearchDriver {
 public:
  explicit UntilTheThirdTrialLevel(const SearchProbe& search) : search_(search) {}
  bool BeforeIteration() override { return search_.Depth() < 4; }
  bool ContinueAfterSolution() override { return false; }

 private:
  const SearchProbe& search_;
};

// Deliberate: the log is one stack along the path, not one for each level.
TEST_F(SearchSteps, OpenedLevelCarriesOnTheLogOfTheLevelBelow) {
  SeededRandom random(1);
  rig.search.StartEmpty(oracle::DrawOrder(random));
  UntilTheThirdTrialLevel driver(rig.probe);
  ASSERT_EQ(rig.search.Run(driver), SearchResult::kStopped);
  ASSERT_EQ(rig.probe.Depth(), 4u);
  const auto& levels = rig.probe.Levels();
  EXPECT_GT(levels[0].UndoCount, 0);
  for (std::size_t depth = 1; depth <= 4; ++depth) {
    const SearchLevel& below = levels[depth - 1];
    EXPECT_GE(levels[depth].UndoCount, below.UndoCount);
    for (int u = 1; u <= below.UndoCount; ++u) {
      EXPECT_EQ(levels[depth].UndoCell[u], below.UndoCell[u]);
      EXPECT_EQ(levels[depth].UndoDigit[u], below.UndoDigit[u]);
    }
  }
  EXPECT_EQ(levels[1].UndoCount, levels[0].UndoCount);  // singles are not logged
  EXPECT_GT(levels[2].UndoCount, levels[1].UndoCount);
}

}  // namespace
}  // namespace tessel
