#include "maker/maker.h"

#include "core/random_source.h"
#include "layout/cage_generator.h"

namespace tessel::maker {

namespace {

// What a puzzle's streams of random numbers are drawn for.
enum class Purpose : std::uint8_t { kSaw, kFill, kConceal };

RandomStream StreamFor(Purpose purpose, std::uint64_t seed, std::uint64_t index) {
  constexpr std::uint64_t purposes = 16;  // room for more in a stream
  return RandomStream(seed, index, kStream * purposes + static_cast<std::uint64_t>(purpose));
}

// Layouts are sawn again when this did not suffice. Of those with a filling, one in ten thousand
// needs more; most of those without one show it sooner.
constexpr std::uint64_t kMaxFillNodes = 1000;

}  // namespace

Maker::Maker(const Recipe& recipe) : recipe_(recipe), solver_(Layout::Regular()) {}

Puzzle Maker::Make(std::uint64_t seed, std::uint64_t index) {
  const Filled filled = SawAndFill(seed, index);
  RandomStream random = StreamFor(Purpose::kConceal, seed, index);
  const Grid givens =
      solver::Conceal(solver_, filled.grid, recipe_.conceal, random, recipe_.givens);
  return Puzzle{filled.layout, givens, filled.grid};
}

Maker::Filled Maker::SawAndFill(std::uint64_t seed, std::uint64_t index) {
  RandomStream fill = StreamFor(Purpose::kFill, seed, index);
  std::optional<Grid> grid;
  const auto fills = [&](const Layout& layout) {
    solver_.Use(layout);
    const solver::Filling filling = solver_.Fill(fill, kMaxFillNodes);
    if (filling.answer == solver::Answer::kYes) grid = filling.grid;
    return grid.has_value();
  };
  if (recipe_.layout == LayoutKind::kRegular) {
    while (!fills(Layout::Regular())) {
    }
    return {Layout::Regular(), *grid};
  }
  SeededRandom walk(StreamFor(Purpose::kSaw, seed, index).Next());
  const LayoutSymmetry symmetry =
      recipe_.layout == LayoutKind::kRotational ? LayoutSymmetry::kHalfTurn : LayoutSymmetry::kNone;
  const Layout layout = *Saw(symmetry, walk, fills);
  return {layout, *grid};
}

}  // namespace tessel::maker
