#include "core/cage_edges.h"

namespace tessel {

namespace {

// The runs along one line between cells. `isWall(k)` tells of the line's k-th piece, `corner(k)` is
// where that piece begins.
std::vector<WallRun> RunsAlong(const auto& isWall, const auto& corner) {
  std::vector<WallRun> runs;
  for (int k = 0; k < kSide; ++k) {
    if (!isWall(k)) continue;
    const int first = k;
    while (k < kSide && isWall(k)) ++k;
    runs.push_back({corner(first), corner(k)});
  }
  return runs;
}

std::vector<WallRun> RunsAbove(int row, const Layout& layout) {
  return RunsAlong([&](int k) { return IsCageWall(layout, CellAt(row, k), CellSide::kTop); },
                   [&](int k) {
                     return Corner{row, k};
                   });
}

std::vector<WallRun> RunsLeftOf(int column, const Layout& layout) {
  return RunsAlong([&](int k) { return IsCageWall(layout, CellAt(k, column), CellSide::kLeft); },
                   [&](int k) {
                     return Corner{k, column};
                   });
}

}  // namespace

std::vector<WallRun> CageWallRuns(const Layout& layout) {
  std::vector<WallRun> runs;
  const auto add = [&](const std::vector<WallRun>& more) {
    runs.insert(runs.end(), more.begin(), more.end());
  };
  for (int row = 1; row < kSide; ++row) add(RunsAbove(row, layout));
  for (int column = 1; column < kSide; ++column) add(RunsLeftOf(column, layout));
  return runs;
}

}  // namespace tessel
