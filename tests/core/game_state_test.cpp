#include "core/game_state.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <set>

#include "core/names.h"
#include "tests/core/layouts.h"

namespace tessel {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;

TEST(Cell, RowsAndColumnsCountFromTheTopLeft) {
  EXPECT_EQ(RowOf(0), 0);
  EXPECT_EQ(ColumnOf(0), 0);
  EXPECT_EQ(RowOf(9), 1);
  EXPECT_EQ(ColumnOf(9), 0);
  EXPECT_EQ(RowOf(80), 8);
  EXPECT_EQ(ColumnOf(80), 8);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(CellAt(RowOf(cell), ColumnOf(cell)), cell);
  }
}

TEST(Cell, HalfTurnMirrorsRowAndColumn) {
  EXPECT_EQ(HalfTurnOf(kCentreCell), kCentreCell);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(HalfTurnOf(cell), CellAt(8 - RowOf(cell), 8 - ColumnOf(cell)));
  }
}

TEST(Mask, HoldsOneBitForEachDigit) {
  Mask all = 0;
  for (int digit = 1; digit <= kSide; ++digit) {
    EXPECT_FALSE(Holds(all, digit));
    all = static_cast<Mask>(all | BitOf(digit));
    EXPECT_TRUE(Holds(all, digit));
  }
  EXPECT_EQ(all, kAllCandidates);
  EXPECT_EQ(Without(kAllCandidates, BitOf(9)), 255);
  EXPECT_EQ(Without(5, BitOf(2)), 5);
}

TEST(GameState, StartsEmpty) {
  const GameState state;
  EXPECT_THAT(state.CageOfCell, Each(0));
  EXPECT_THAT(state.WorkGrid, Each(0));
  EXPECT_THAT(state.Puzzle, Each(0));
  EXPECT_THAT(state.Candidates, Each(0));
  EXPECT_THAT(state.CandidatesBeforeEntry, Each(0));
  EXPECT_EQ(state.SavedPuzzle, PuzzleRecord{});
  EXPECT_EQ(state.PlayBoard, PuzzleRecord{});
  EXPECT_EQ(static_cast<int>(state.PencilmarkMode), 2);
  EXPECT_EQ(state.UndoCount, 0);
  EXPECT_TRUE(state.UndoCell.empty());
  EXPECT_FALSE(state.Finished);
  EXPECT_FALSE(state.StopRequested);
  EXPECT_FALSE(state.Command1Pressed);
  EXPECT_EQ(state.AssignmentPending, Bool16::kFalse);
  EXPECT_EQ(state.Stopwatch, nullptr);
}

TEST(GameState, TrueIsMinusOneInA16BitField) {
  EXPECT_EQ(static_cast<int>(Bool16::kTrue), -1);
  EXPECT_EQ(static_cast<int>(Bool16::kFalse), 0);
  EXPECT_EQ(sizeof(Bool16), 2u);
}

TEST(FillTables, BitCountCountsTheCandidatesOfEveryMask) {
  GameState state;
  FillTables(state);
  EXPECT_EQ(state.BitCount[0], 0);
  EXPECT_EQ(state.BitCount[256], 1);
  EXPECT_EQ(state.BitCount[511], 9);
  for (unsigned mask = 0; mask < 512; ++mask) {
    EXPECT_EQ(state.BitCount[mask], std::popcount(mask));
  }
}

TEST(FillTables, TheNinthRowIsJ) {
  GameState state;
  FillTables(state);
  EXPECT_THAT(state.AxisLetters, ElementsAre('A', 'B', 'C', 'D', 'E', 'F', 'G', 'H', 'J'));
}

TEST(FillTables, CageColoursJoinTheClassicPalette) {
  GameState state;
  FillTables(state);
  EXPECT_THAT(state.CageColour,
              ElementsAre(Rgb{192, 192, 192}, Rgb{128, 128, 0}, Rgb{128, 128, 255}, Rgb{0, 255, 0},
                          Rgb{0, 255, 255}, Rgb{255, 128, 128}, Rgb{255, 128, 255},
                          Rgb{255, 255, 0}, Rgb{255, 255, 255}));
}

TEST(CellName, JoinsRowLetterAndColumnDigit) {
  EXPECT_EQ(CellName(0), "A1");
  EXPECT_EQ(CellName(8), "A9");
  EXPECT_EQ(CellName(9), "B1");
  EXPECT_EQ(CellName(71), "H9");
  EXPECT_EQ(CellName(72), "J1");
  EXPECT_EQ(CellName(80), "J9");
}

TEST(CellName, NoTwoCellsShareOneAndNoneIsInRowI) {
  std::set<std::string> names;
  for (int cell = 0; cell < kCellCount; ++cell) names.insert(CellName(cell));
  EXPECT_EQ(names.size(), 81u);
  for (const std::string& name : names) EXPECT_NE(name[0], 'I');
  EXPECT_EQ(RowName(8), "J");
  EXPECT_EQ(ColumnName(8), "9");
}

TEST(SetLayout, ListsTheCellsOfEachCageInAscendingOrder) {
  const GameState state = StateWithLayout(kIrregularLayout);
  EXPECT_THAT(state.CageCells[0], ElementsAre(0, 1, 9, 10, 11, 18, 19, 20, 21));
  EXPECT_THAT(state.CageCells[6], ElementsAre(45, 54, 56, 63, 64, 65, 72, 73, 74));
  EXPECT_THAT(state.CageCells[8], ElementsAre(59, 60, 61, 62, 69, 70, 71, 79, 80));
}

TEST(SetLayout, ReplacesTheLayoutBefore) {
  GameState state = StateWithLayout(kIrregularLayout);
  CageNumbers cages{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    cages[cell] = static_cast<std::uint8_t>(9 - RowOf(cell));
  }
  SetLayout(state, Layout::FromCages(cages).value());
  EXPECT_THAT(state.CageOfCell, ElementsAreArray(cages));
  EXPECT_EQ(LayoutOf(state).Cages(), cages);
  EXPECT_THAT(state.CageCells[0], ElementsAre(72, 73, 74, 75, 76, 77, 78, 79, 80));
  EXPECT_THAT(state.CageCells[8], ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8));
}

TEST(CageAround, HoldsTheCellItself) {
  const GameState state = StateWithLayout(kIrregularLayout);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_THAT(CageAround(state, cell), testing::Contains(cell));
    EXPECT_EQ(CageAround(state, cell).size(), 9u);
  }
  EXPECT_THAT(CageAround(state, 55), ElementsAre(27, 28, 29, 30, 36, 37, 38, 46, 55));
}

TEST(CageAround, IsEmptyWithoutACage) {
  GameState state = StateWithLayout(kIrregularLayout);
  for (const int cage : {0, -1, 10, int{std::numeric_limits<std::int16_t>::max()}}) {
    state.CageOfCell[40] = static_cast<std::int16_t>(cage);
    EXPECT_TRUE(CageAround(state, 40).empty()) << cage;
    EXPECT_EQ(CageColourOf(state, 40), kBoardColour) << cage;
  }
}

TEST(CageColourOf, IsTheColourOfTheCellsCage) {
  const GameState state = StateWithLayout(kIrregularLayout);
  EXPECT_EQ(CageColourOf(state, 0), (Rgb{192, 192, 192}));
  EXPECT_EQ(CageColourOf(state, 59), (Rgb{255, 255, 255}));
}

// Whether the cells share a house of the layout.
bool SharesHouse(const GameState& state, int a, int b) {
  return RowOf(a) == RowOf(b) || ColumnOf(a) == ColumnOf(b) ||
         state.CageOfCell[a] == state.CageOfCell[b];
}

TEST(RemoveFromHouses, TakesTheDigitFromRowColumnAndCageAndNothingElse) {
  const GameState state = StateWithLayout(kIrregularLayout);
  for (int cell = 0; cell < kCellCount; ++cell) {
    MaskBoard candidates;
    candidates.fill(kAllCandidates);
    const int digit = 1 + cell % kSide;
    RemoveFromHouses(state, cell, digit, candidates);
    for (int other = 0; other < kCellCount; ++other) {
      const Mask expected = SharesHouse(state, cell, other)
                                ? static_cast<Mask>(kAllCandidates - BitOf(digit))
                                : kAllCandidates;
      EXPECT_EQ(candidates[other], expected) << cell << " " << other;
    }
  }
}

TEST(RemoveFromHouses, LeavesMasksWithoutTheDigitAlone) {
  const GameState state = StateWithLayout(kIrregularLayout);
  MaskBoard candidates{};
  RemoveFromHouses(state, 40, 5, candidates);
  EXPECT_THAT(candidates, Each(0));
}

TEST(RemoveFromHouses, WithoutACageTakesRowAndColumnAlone) {
  GameState state = StateWithLayout(kIrregularLayout);
  state.CageOfCell.fill(0);
  MaskBoard candidates;
  candidates.fill(kAllCandidates);
  RemoveFromHouses(state, 0, 1, candidates);
  EXPECT_THAT(candidates, testing::Contains(510).Times(17));
  EXPECT_EQ(candidates[10], kAllCandidates);
}

}  // namespace
}  // namespace tessel
