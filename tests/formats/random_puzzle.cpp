#include "tests/formats/random_puzzle.h"

#include <utility>

#include "core/random_stream.h"

namespace tessel::formats {

namespace {

Layout RandomLayout(RandomStream& random) {
  constexpr int exchanges = 400;
  CageNumbers cages = Layout::Regular().Cages();
  for (int i = 0; i < exchanges; ++i) {
    const std::size_t a = random.Below(kCellCount);
    const std::size_t b = random.Below(kCellCount);
    std::swap(cages[a], cages[b]);
    if (!Layout::FromCages(cages)) std::swap(cages[a], cages[b]);
  }
  return Layout::FromCages(cages).value();
}

DescribedPuzzle WithDigits(const Layout& layout, RandomStream& random) {
  DescribedPuzzle described{.puzzle = {layout, {}, Grid{}}};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const auto digit = static_cast<std::uint8_t>(random.Below(9) + 1);
    (*described.puzzle.solution)[cell] = digit;
    if (random.Below(3) == 0) described.puzzle.givens[cell] = digit;
  }
  return described;
}

}  // namespace

DescribedPuzzle RandomPuzzle(std::uint64_t seed, std::uint64_t index) {
  RandomStream random(seed, index);
  const Layout layout = RandomLayout(random);
  return WithDigits(layout, random);
}

DescribedPuzzle RandomRegularPuzzle(std::uint64_t seed, std::uint64_t index) {
  RandomStream random(seed, index);
  return WithDigits(Layout::Regular(), random);
}

}  // namespace tessel::formats
