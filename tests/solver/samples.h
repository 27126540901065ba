// Samples of the oracles in the program's types.
#pragma once

#include <algorithm>
#include <vector>

#include "solver/solver.h"
#include "tests/oracle/search/independent_solver.h"
#include "tests/oracle/search/samples.h"

namespace tessel::solver {

inline Grid GridOf(const oracle::Grid& numbers) {
  Grid grid;
  std::ranges::transform(numbers, grid.begin(),
                         [](std::int16_t number) { return static_cast<std::uint8_t>(number); });
  return grid;
}

inline oracle::Grid OracleGridOf(const Grid& grid) {
  oracle::Grid numbers;
  std::ranges::copy(grid, numbers.begin());
  return numbers;
}

inline oracle::Layout OracleLayoutOf(const Layout& layout) {
  return oracle::LayoutOf(OracleGridOf(layout.Cages()));
}

// How many of them questions about any layout are asked of.
#ifdef __SANITIZE_ADDRESS__
inline constexpr std::uint64_t kSampleLayouts = 10;
#else
inline constexpr std::uint64_t kSampleLayouts = 60;
#endif

// Random, rotational and regular ones in turn.
inline Layout SampleLayout(std::uint64_t seed) {
  using Mode = oracle::LiteralLayout::Mode;
  if (seed % 3 == 0) return Layout::Regular();
  const auto mode = seed % 3 == 1 ? Mode::kRandom : Mode::kRotational;
  return Layout::FromCages(GridOf(oracle::SampleLayout(seed, mode).cageOfCell)).value();
}

// The layout with the cages of some cells exchanged, which may tear cages apart.
inline Layout Torn(const Layout& layout, int swaps, RandomStream& random) {
  CageNumbers cages = layout.Cages();
  for (int i = 0; i < swaps; ++i) {
    std::swap(cages[random.Below(kCellCount)], cages[random.Below(kCellCount)]);
  }
  return Layout::FromCages(cages, Layout::Shape::kAny).value();
}

}  // namespace tessel::solver
