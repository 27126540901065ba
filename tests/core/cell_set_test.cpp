#include "core/cell_set.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "core/random_source.h"

namespace tessel {
namespace {

using NaiveSet = std::set<int>;

CellSet FromNaive(const NaiveSet& cells) {
  CellSet set;
  for (const int cell : cells) set = set | CellSet::Of(cell);
  return set;
}

NaiveSet ToNaive(CellSet set) {
  NaiveSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (set.Contains(cell)) cells.insert(cell);
  }
  return cells;
}

NaiveSet NaiveNeighbours(int cell) {
  NaiveSet cells;
  if (RowOf(cell) > 0) cells.insert(cell - kSide);
  if (RowOf(cell) < kSide - 1) cells.insert(cell + kSide);
  if (ColumnOf(cell) > 0) cells.insert(cell - 1);
  if (ColumnOf(cell) < kSide - 1) cells.insert(cell + 1);
  return cells;
}

NaiveSet NaiveFirstRegion(const NaiveSet& area) {
  if (area.empty()) return {};
  NaiveSet region;
  NaiveSet waiting{*area.begin()};
  while (!waiting.empty()) {
    const int cell = waiting.extract(waiting.begin()).value();
    region.insert(cell);
    for (const int next : NaiveNeighbours(cell)) {
      if (area.contains(next) && !region.contains(next)) waiting.insert(next);
    }
  }
  return region;
}

// Each cell with the given probability.
NaiveSet RandomCells(SeededRandom& random, float probability) {
  NaiveSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (random.Next() < probability) cells.insert(cell);
  }
  return cells;
}

TEST(CellSet, OfHoldsThatCellAlone) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(ToNaive(CellSet::Of(cell)), NaiveSet{cell});
    EXPECT_EQ(CellSet::Of(cell).First(), cell);
    EXPECT_EQ(CellSet::Of(cell).Count(), 1);
  }
}

TEST(CellSet, AllHoldsTheBoardAndNothingElse) {
  EXPECT_EQ(kAllCells.Count(), kCellCount);
  EXPECT_EQ(ToNaive(kAllCells).size(), 81u);
  EXPECT_TRUE(CellSet{}.Empty());
  EXPECT_FALSE(CellSet::Of(kCellCount - 1).Empty());
}

TEST(CellSet, AgreesWithANaiveSet) {
  SeededRandom random(2024);
  for (int round = 0; round < 300; ++round) {
    const NaiveSet a = RandomCells(random, 0.5F);
    const NaiveSet b = RandomCells(random, 0.3F);
    NaiveSet both;
    NaiveSet either = a;
    NaiveSet difference = a;
    either.insert(b.begin(), b.end());
    for (const int cell : b) {
      if (difference.erase(cell) > 0) both.insert(cell);
    }
    EXPECT_EQ(ToNaive(FromNaive(a) & FromNaive(b)), both);
    EXPECT_EQ(ToNaive(FromNaive(a) | FromNaive(b)), either);
    EXPECT_EQ(ToNaive(FromNaive(a) - FromNaive(b)), difference);
    EXPECT_EQ(FromNaive(a).Count(), static_cast<int>(a.size()));
    EXPECT_EQ(FromNaive(a).First(), *a.begin());
    EXPECT_EQ(FromNaive(a) == FromNaive(b), a == b);
  }
}

TEST(NeighboursOf, TouchBySideAndDoNotWrapAroundTheEdges) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(ToNaive(NeighboursOf(CellSet::Of(cell))), NaiveNeighbours(cell)) << cell;
  }
}

TEST(NeighboursOf, StayOutsideTheSetAndOnTheBoard) {
  EXPECT_TRUE(NeighboursOf(kAllCells).Empty());
  const CellSet corner = CellSet::Of(79) | CellSet::Of(80);
  EXPECT_EQ(ToNaive(NeighboursOf(corner)), (NaiveSet{70, 71, 78}));
}

TEST(ForEach, VisitsEveryCellInIncreasingOrder) {
  std::vector<int> visited;
  ForEach(FromNaive({80, 0, 44, 45, 40}), [&](int cell) { visited.push_back(cell); });
  EXPECT_EQ(visited, (std::vector{0, 40, 44, 45, 80}));
  ForEach(CellSet{}, [](int cell) { ADD_FAILURE() << cell; });
}

TEST(FirstRegionOf, AgreesWithANaiveFloodFill) {
  SeededRandom random(7);
  for (int round = 0; round < 300; ++round) {
    const NaiveSet area = RandomCells(random, 0.6F);
    EXPECT_EQ(ToNaive(FirstRegionOf(FromNaive(area))), NaiveFirstRegion(area));
  }
}

TEST(FirstRegionOf, IsEmptyForNoAreaAndTheBoardForTheBoard) {
  EXPECT_TRUE(FirstRegionOf({}).Empty());
  EXPECT_EQ(FirstRegionOf(kAllCells), kAllCells);
}

TEST(FirstRegionOf, DoesNotCrossCorners) {
  const CellSet diagonal = CellSet::Of(CellAt(4, 4)) | CellSet::Of(CellAt(5, 5));
  EXPECT_EQ(FirstRegionOf(diagonal), CellSet::Of(CellAt(4, 4)));
}

TEST(FirstRegionOf, DoesNotWrapFromARowEndToTheNextRow) {
  const CellSet ends = CellSet::Of(CellAt(6, 8)) | CellSet::Of(CellAt(7, 0));
  EXPECT_EQ(FirstRegionOf(ends), CellSet::Of(CellAt(6, 8)));
}

}  // namespace
}  // namespace tessel
