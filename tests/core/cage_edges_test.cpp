#include "core/cage_edges.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessel {
namespace {

// The first cage takes a cell of the second box, and gives it one of its own.
Layout Bent() {
  CageNumbers cages = Layout::Regular().Cages();
  cages[CellAt(0, 3)] = 1;
  cages[CellAt(2, 2)] = 2;
  cages[CellAt(2, 3)] = 2;
  return *Layout::FromCages(cages);
}

TEST(CageEdges, NeighboursLieBeyondEachSide) {
  EXPECT_EQ(NeighbourBeyond(40, CellSide::kLeft), 39);
  EXPECT_EQ(NeighbourBeyond(40, CellSide::kTop), 31);
  EXPECT_EQ(NeighbourBeyond(40, CellSide::kRight), 41);
  EXPECT_EQ(NeighbourBeyond(40, CellSide::kBottom), 49);
}

TEST(CageEdges, NoNeighbourOutsideTheBoard) {
  int outside = 0;
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (const CellSide side : kCellSides) outside += !NeighbourBeyond(cell, side) ? 1 : 0;
  }
  EXPECT_EQ(outside, 4 * kSide);
  EXPECT_FALSE(NeighbourBeyond(9, CellSide::kLeft));
  EXPECT_FALSE(NeighbourBeyond(8, CellSide::kRight));
}

TEST(CageEdges, WallsStandBetweenCagesAndAroundTheBoard) {
  const Layout bent = Bent();
  EXPECT_FALSE(IsCageWall(bent, CellAt(0, 2), CellSide::kRight));
  EXPECT_TRUE(IsCageWall(bent, CellAt(0, 3), CellSide::kRight));
  EXPECT_TRUE(IsCageWall(bent, CellAt(0, 3), CellSide::kBottom));
  EXPECT_TRUE(IsCageWall(bent, CellAt(0, 3), CellSide::kTop));
}

TEST(CageEdges, BothCellsTellTheSameOfTheirCommonSide) {
  const Layout bent = Bent();
  for (int cell = 0; cell < kCellCount; ++cell) {
    const std::optional<int> right = NeighbourBeyond(cell, CellSide::kRight);
    if (!right) continue;
    EXPECT_EQ(IsCageWall(bent, cell, CellSide::kRight), IsCageWall(bent, *right, CellSide::kLeft));
  }
}

TEST(CageEdges, AnyRelationOfCellsCanTellTheWalls) {
  const auto together = [](int a, int b) { return (a < 40) == (b < 40); };
  EXPECT_TRUE(IsWall(39, CellSide::kRight, together));
  EXPECT_FALSE(IsWall(38, CellSide::kRight, together));
}

TEST(CageEdges, RegularBoxesHaveFourWallsAcrossTheBoard) {
  const std::vector<WallRun> expected{
      {{3, 0}, {3, 9}}, {{6, 0}, {6, 9}}, {{0, 3}, {9, 3}}, {{0, 6}, {9, 6}}};
  EXPECT_EQ(CageWallRuns(Layout::Regular()), expected);
}

TEST(CageEdges, RunsCoverEachInnerWallOnce) {
  const Layout bent = Bent();
  int walls = 0;
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (const CellSide side : {CellSide::kLeft, CellSide::kTop}) {
      walls += NeighbourBeyond(cell, side) && IsCageWall(bent, cell, side) ? 1 : 0;
    }
  }
  int covered = 0;
  for (const WallRun& run : CageWallRuns(bent)) {
    EXPECT_TRUE(run.from.row == run.to.row || run.from.column == run.to.column);
    covered += run.to.row - run.from.row + run.to.column - run.from.column;
  }
  EXPECT_EQ(covered, walls);
}

TEST(CageEdges, RunsEndWhereTheWallTurns) {
  const std::vector<WallRun> runs = CageWallRuns(Bent());
  EXPECT_EQ(std::ranges::count(runs, WallRun{{0, 4}, {1, 4}}), 1);
  EXPECT_EQ(std::ranges::count(runs, WallRun{{1, 3}, {1, 4}}), 1);
}

}  // namespace
}  // namespace tessel
