#include "tests/oracle/search/samples.h"

#include <numeric>
#include <utility>

#include "tests/oracle/search/independent_solver.h"

namespace tessel::oracle {

Grid DrawOrder(RandomSource& random) {
  Grid order;
  std::iota(order.begin(), order.end(), std::int16_t{0});
  for (int swaps = 0; swaps < 500; ++swaps) {
    const int a = DrawIndex(random, 81);
    const int b = DrawIndex(random, 81);
    std::swap(order[a], order[b]);
  }
  return order;
}

Layout SampleLayout(std::uint64_t seed, LiteralLayout::Mode mode) {
  SeededRandom random(seed);
  return LiteralLayout(random).BuildTesselPattern(mode);
}

TryOutResult TryOrders(const Layout& layout, RandomSource& random, long limit, int tries) {
  LiteralSearch search(layout);
  TryOutResult result;
  for (int i = 0; i < tries && !result.solution; ++i) {
    result.order = DrawOrder(random);
    if (search.GenerateTessel(result.order, limit) == LiteralSearch::End::kSolved) {
      result.solution = search.Levels[search.Depth].Digit;
    }
  }
  result.iterations = search.iterations;
  result.pumps = search.pumps;
  return result;
}

std::optional<Grid> SampleSolution(const Layout& layout, std::uint64_t seed) {
  SeededRandom random(seed);
  return TryOrders(layout, random, 500, 2000).solution;
}

std::optional<Grid> AnySolution(const Layout& layout, std::uint64_t seed) {
  IndependentSolver solver(layout);
  if (solver.HasFilling(1'000'000) != true) return std::nullopt;
  std::array<std::int16_t, 10> exchanged{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
  SeededRandom random(seed);
  for (int last = 9; last > 1; --last) {
    std::swap(exchanged[last], exchanged[1 + DrawIndex(random, last)]);
  }
  Grid grid = solver.Solution();
  for (std::int16_t& digit : grid) digit = exchanged[digit];
  return grid;
}

Grid GridOf(std::string_view text) {
  Grid grid{};
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '.') grid.at(i) = static_cast<std::int16_t>(text[i] - '0');
  }
  return grid;
}

}  // namespace tessel::oracle
