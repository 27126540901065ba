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

}  // namespace

std::vector<WallRun> CageWallRuns(const Layout& layout) {
  std::vector<WallRun> runs;
  const auto add = [&](const std::vector<WallRun>& more) {
    runs.insert(runs.end(), more.begin(), more.end());
  };
  for (int line = 1; line < kSide; ++line) {
    add(RunsAlong([&](int k) { return IsCageWall(layout, CellAt(line, k), CellSide::kTop); },
                  [&](int k) {
                    return Corner{line, k};
                  }));
  }
  for (int line = 1; line < kSide; ++line) {
    add(RunsAlong([&](int k) { return IsCageWall(layout, CellAt(k, line), CellSide::kLeft); },
                  [&](int k) {
                    return Corner{k, line};
                  }));
  }
  return runs;
}

}  // namespace tessel
