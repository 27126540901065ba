#include "core/symmetry.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/random_stream.h"
#include "tests/core/layouts.h"

namespace tessel {
namespace {

CageNumbers NumbersFrom(std::string_view text) {
  CageNumbers numbers{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    numbers[cell] = static_cast<std::uint8_t>(text[cell] - '0');
  }
  return numbers;
}

template <typename Board>
Board Moved(const Board& board, Symmetry symmetry) {
  Board moved{};
  for (int cell = 0; cell < kCellCount; ++cell) moved[cell] = board[SourceOf(symmetry, cell)];
  return moved;
}

// The digits 1..9 under other names.
Grid Renamed(const Grid& grid, int by) {
  Grid renamed{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (grid[cell] != 0) renamed[cell] = static_cast<std::uint8_t>((grid[cell] * by) % 10);
  }
  return renamed;
}

Grid SomeGivens() {
  RandomStream random(1);
  Grid givens{};
  for (std::uint8_t& digit : givens) {
    if (random.Below(3) == 0) digit = static_cast<std::uint8_t>(1 + random.Below(9));
  }
  return givens;
}

TEST(Symmetry, EveryOneIsAPermutationAndTheTurnsGoRound) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    int turned = cell;
    for (int i = 0; i < 4; ++i) turned = SourceOf(Symmetry::kQuarterTurn, turned);
    EXPECT_EQ(turned, cell);
    EXPECT_EQ(SourceOf(Symmetry::kThreeQuarterTurn, SourceOf(Symmetry::kQuarterTurn, cell)), cell);
    for (const Symmetry mirror : {Symmetry::kHalfTurn, Symmetry::kLeftRight, Symmetry::kUpDown,
                                  Symmetry::kDiagonal, Symmetry::kAntidiagonal}) {
      EXPECT_EQ(SourceOf(mirror, SourceOf(mirror, cell)), cell);
    }
  }
  // Clockwise, the upper left corner comes to the upper right.
  EXPECT_EQ(SourceOf(Symmetry::kQuarterTurn, CellAt(0, 8)), CellAt(0, 0));
}

void ExpectTheSameForm(const CageNumbers& cages) {
  const Grid givens = SomeGivens();
  const CanonicalForm form = CanonicalFormOf(Layout::FromCages(cages).value(), givens);
  for (const Symmetry symmetry : kSymmetries) {
    for (const int by : {3, 7, 9}) {  // each a permutation of 1..9
      const CageNumbers moved = Moved(Renamed(cages, by), symmetry);
      EXPECT_EQ(
          CanonicalFormOf(Layout::FromCages(moved).value(), Moved(Renamed(givens, by), symmetry)),
          form);
    }
  }
}

TEST(CanonicalForm, IsTheSameForAllThatIsTheSamePuzzle) {
  ExpectTheSameForm(NumbersFrom(kIrregularLayout));
  // Cages that look the same from every side leave the choice to the givens.
  ExpectTheSameForm(Layout::Regular().Cages());
}

TEST(CanonicalForm, IsAFormOfThePuzzleAndTellsOthersApart) {
  const Layout layout = Layout::FromCages(NumbersFrom(kIrregularLayout)).value();
  const CanonicalForm form = CanonicalFormOf(layout, SomeGivens());
  EXPECT_EQ(CanonicalFormOf(Layout::FromCages(form.cages).value(), form.givens), form);
  Grid fewer = SomeGivens();
  *std::ranges::find_if(fewer, [](int digit) { return digit != 0; }) = 0;
  EXPECT_NE(CanonicalFormOf(layout, fewer), form);
}

TEST(SymmetryName, IsThatOfWallsAndPlacesTogether) {
  const Layout& boxes = Layout::Regular();
  Grid givens{};
  EXPECT_EQ(SymmetryNameOf(boxes, givens), "full");
  givens[CellAt(0, 1)] = 5;
  EXPECT_EQ(SymmetryNameOf(boxes, givens), "none");
  givens[CellAt(8, 7)] = 9;
  EXPECT_EQ(SymmetryNameOf(boxes, givens), "half-turn");
  givens[CellAt(0, 7)] = givens[CellAt(8, 1)] = 1;
  EXPECT_EQ(SymmetryNameOf(boxes, givens), "left-right and up-down");
  const Layout irregular = Layout::FromCages(NumbersFrom(kIrregularLayout)).value();
  EXPECT_EQ(SymmetryNameOf(irregular, Grid{}), "none");
}

TEST(SymmetryName, EverySetOfSymmetriesHasOne) {
  for (const Symmetry a : kSymmetries) {
    for (const Symmetry b : kSymmetries) {
      // Givens wherever products of the two bring the first cells.
      Grid givens{};
      for (const int start : {1, 11}) {
        int cell = start;
        for (int i = 0; i < 16; ++i) {
          givens[cell] = 1;
          cell = SourceOf(i % 2 == 0 ? a : b, cell);
        }
      }
      EXPECT_FALSE(SymmetryNameOf(Layout::Regular(), givens).empty());
    }
  }
}

}  // namespace
}  // namespace tessel
