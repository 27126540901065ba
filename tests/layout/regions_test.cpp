#include "layout/regions.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "core/random_source.h"

namespace tessel {
namespace {

// Every cell with this chance.
CellSet DrawCells(RandomSource& random, double chance) {
  CellSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (random.Next() < chance) cells = cells | CellSet::Of(cell);
  }
  return cells;
}

// All that the regions promise, whichever of them stand first.
void ExpectRegionsOf(const Regions& regions, CellSet cells) {
  EXPECT_EQ(regions.All(), cells);
  EXPECT_EQ(regions.first.Count() + regions.second.Count() + regions.others.Count(), cells.Count());
  EXPECT_EQ(regions.first.Empty(), cells.Empty());
  EXPECT_EQ(FirstRegionOf(regions.first), regions.first);
  EXPECT_TRUE((NeighboursOf(regions.first) & cells).Empty());
  EXPECT_EQ(regions.second.Empty(), regions.first == cells);
  EXPECT_EQ(FirstRegionOf(regions.second), regions.second);
  EXPECT_TRUE((NeighboursOf(regions.second) & cells).Empty());
}

CellSet CellsOf(std::initializer_list<int> cells) {
  CellSet set;
  for (const int cell : cells) set = set | CellSet::Of(cell);
  return set;
}

TEST(Regions, TellsNoneOneTwoAndMoreApart) {
  ExpectRegionsOf(RegionsOf({}), {});
  ExpectRegionsOf(RegionsOf(kAllCells), kAllCells);
  ExpectRegionsOf(RegionsOf(CellsOf({3, 12, 50, 51})), CellsOf({3, 12, 50, 51}));
  EXPECT_EQ(RegionsOf(CellsOf({0, 10, 80})).others, CellsOf({80}));
}

TEST(Regions, ARegionOfOneCellGoesWithIt) {
  ExpectRegionsOf(RegionsOf(CellsOf({40})).Without(40), {});
  ExpectRegionsOf(RegionsOf(CellsOf({0, 40})).Without(0), CellsOf({40}));
  ExpectRegionsOf(RegionsOf(CellsOf({0, 40, 42, 44})).Without(0), CellsOf({40, 42, 44}));
  ExpectRegionsOf(RegionsOf(CellsOf({0, 40, 42, 44})).Without(40), CellsOf({0, 42, 44}));
}

TEST(Regions, ACellMayPartItsRegionOrBeWalkedAround) {
  const CellSet row = CellsOf({36, 37, 38, 39, 40, 41, 42, 43, 44});  // beside the words' seam
  EXPECT_FALSE(RegionsOf(row).Without(40).second.Empty());
  EXPECT_TRUE(RegionsOf(row).Without(44).second.Empty());
  const CellSet ring = CellsOf({30, 31, 32, 39, 41, 48, 49, 50});
  EXPECT_TRUE(RegionsOf(ring | CellSet::Of(40)).Without(40).second.Empty());
  EXPECT_TRUE(RegionsOf(ring).Without(31).second.Empty());
  EXPECT_FALSE(RegionsOf(ring - CellSet::Of(49)).Without(31).second.Empty());
}

// Down to the last cell, in a random order.
TEST(Regions, AreKeptWhileCellsGo) {
  SeededRandom random(7);
  for (int board = 0; board < 300; ++board) {
    const CellSet start = DrawCells(random, 0.3 + 0.7 * random.Next());
    Regions regions = RegionsOf(start);
    while (!regions.All().Empty()) {
      const CellSet cells = regions.All();
      int cell = DrawIndex(random, kCellCount);
      while (!cells.Contains(cell)) cell = (cell + 1) % kCellCount;
      regions = regions.Without(cell);
      ExpectRegionsOf(regions, cells - CellSet::Of(cell));
      ASSERT_FALSE(testing::Test::HasFailure()) << "board " << board << ", cell " << cell;
    }
  }
}

}  // namespace
}  // namespace tessel
