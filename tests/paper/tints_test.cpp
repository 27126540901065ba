#include "paper/tints.h"

#include <gtest/gtest.h>

#include "core/cage_edges.h"
#include "tests/paper/sample_puzzles.h"

namespace tessel::paper {
namespace {

void ExpectNeighboursDiffer(const Layout& layout) {
  const auto tints = TintsOf(layout);
  ASSERT_TRUE(tints);
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (const CellSide side : kCellSides) {
      const auto other = NeighbourBeyond(cell, side);
      if (!other || !IsCageWall(layout, cell, side)) continue;
      EXPECT_NE((*tints)[layout.CageOf(cell) - 1], (*tints)[layout.CageOf(*other) - 1]);
    }
  }
}

TEST(Tints, NeighbouringCagesDiffer) {
  ExpectNeighboursDiffer(Layout::Regular());
  for (const BookletPuzzle& puzzle : SamplePuzzles(8)) ExpectNeighboursDiffer(puzzle.puzzle.layout);
}

// Cages meet those that are 1, 3 or 4 further on, so that no three cages can have one tint.
TEST(Tints, NoneWhereScatteredCagesNeedMoreThanFour) {
  CageNumbers cages{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int row = RowOf(cell);
    cages[cell] = static_cast<std::uint8_t>(1 + (3 * row + row / 3 + ColumnOf(cell)) % kSide);
  }
  EXPECT_FALSE(TintsOf(*Layout::FromCages(cages, Layout::Shape::kAny)));
}

}  // namespace
}  // namespace tessel::paper
