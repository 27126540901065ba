// Bytes to a layout and 81 givens, whose uniqueness is held against another solver's answer.
//
// Byte 0: the layout. Byte 1: 0 = nothing is changed; else how many cells change cages. Eleven
// bytes: a bit for each cell, 1 = given. The rest, two bytes each, if anything is changed: a cell
// and its number, out of range as it may be.
#include <utility>

#include "fuzz/input.h"
#include "search/exact_cover_search.h"
#include "tests/oracle/search/independent_solver.h"
#include "tests/oracle/search/program_layout.h"
#include "tests/oracle/search/samples.h"

namespace tessel::fuzz {
namespace {

using oracle::Grid;
using oracle::Layout;

// Sparse givens without a completion may keep a search busy for minutes: there are always as many
// as concealing leaves at least, and more where they may contradict each other.
constexpr int kMinGivens = 23;
constexpr int kMinChangedGivens = 34;
constexpr long kMaxPlacements = 100'000;  // of the other solver, which is not asked further

struct Sample {
  Layout layout;
  Grid solution{};
};

// Of the sawed layouts those for which a filling is soon found.
std::vector<Sample> MakeSamples() {
  std::vector<Sample> samples{
      {oracle::RegularLayout(), oracle::AnySolution(oracle::RegularLayout(), 1).value()}};
  for (std::uint64_t seed = 1; samples.size() < 32; ++seed) {
    using Mode = oracle::LiteralLayout::Mode;
    const Layout layout = oracle::SampleLayout(seed, seed % 2 ? Mode::kRandom : Mode::kRotational);
    oracle::IndependentSolver solver(layout);
    if (solver.HasFilling(2000) == true) samples.push_back({layout, solver.Solution()});
  }
  return samples;
}

const Sample& DrawSample(Input& input) {
  static const std::vector<Sample> samples = MakeSamples();
  return samples[static_cast<std::size_t>(input.Byte()) % samples.size()];
}

// Cages of nine cells still, but no longer connected.
Layout MoveCells(const Layout& layout, int swaps, Input& input) {
  Grid cages = layout.cageOfCell;
  for (int i = 0; i < swaps; ++i) std::swap(cages[input.Draw(81)], cages[input.Draw(81)]);
  return oracle::LayoutOf(cages);
}

Grid DrawGivens(const Grid& solution, int fewest, Input& input) {
  Grid givens{};
  int count = 0;
  int bits = 0;
  for (int i = 0; i < 81; ++i) {
    const int cell = i * 29 % 81;  // so that the last ones lie all over the board
    bits = i % 8 == 0 ? input.Byte() : bits >> 1;
    const bool needed = 81 - i <= fewest - count;
    if ((bits & 1) == 0 && !needed) continue;
    givens[cell] = solution[cell];
    ++count;
  }
  while (!input.Empty() && fewest == kMinChangedGivens) {
    const int cell = input.Draw(81);
    givens[cell] = static_cast<std::int8_t>(input.Byte());
  }
  return givens;
}

void Try(Input& input) {
  static ExactCoverSearch search(tessel::Layout::Regular());
  const Sample& sample = DrawSample(input);
  const int kind = input.Byte();
  const Layout layout = kind % 8 == 0 ? sample.layout : MoveCells(sample.layout, kind % 8, input);
  const Grid givens =
      DrawGivens(sample.solution, kind == 0 ? kMinGivens : kMinChangedGivens, input);
  search.Use(oracle::ProgramLayout(layout));
  oracle::IndependentSolver solver(layout);
  const auto completions = solver.CountSolutions(givens, 2, kMaxPlacements);
  if (!completions) return;
  Require(search.UniqueSolution(givens) == (completions == 1), "two solvers agree");
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tessel::fuzz::Input input(data, size);
  tessel::fuzz::Try(input);
  return 0;
}
