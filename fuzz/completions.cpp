// Bytes to a layout and givens, whose completions the fast solver and a slow one count on every
// path.
//
// Byte 0: the layout it begins with. Byte 1: how many pairs of cells then exchange cages, which may
// tear these apart; the pairs. Eleven bytes: a bit for each cell that holds its digit of a filling.
// The rest, two bytes each: a cell and its number, of any size.
#include "fuzz/input.h"
#include "tests/solver/samples.h"

namespace tessel::fuzz {
namespace {

using namespace tessel::solver;

std::vector<Layout> MakeSamples() {
  std::vector<Layout> samples;
  for (std::uint64_t seed = 0; seed < 32; ++seed) samples.push_back(solver::SampleLayout(seed));
  return samples;
}

Layout DrawLayout(Input& input) {
  static const std::vector<Layout> samples = MakeSamples();
  CageNumbers cages = samples[static_cast<std::size_t>(input.Draw(32))].Cages();
  for (int swaps = input.Byte() % 6; swaps > 0; --swaps) {
    std::swap(cages[input.Draw(81)], cages[input.Draw(81)]);
  }
  return Layout::FromCages(cages, Layout::Shape::kAny).value();
}

Grid DrawGivens(const Grid& filling, Input& input) {
  Grid givens{};
  for (int first = 0; first < kCellCount; first += 8) {
    const int bits = input.Byte();
    for (int cell = first; cell < std::min(first + 8, kCellCount); ++cell) {
      if ((bits >> cell % 8 & 1) != 0) givens[cell] = filling[cell];
    }
  }
  while (!input.Empty()) {
    const int cell = input.Draw(81);
    givens[cell] = static_cast<std::uint8_t>(input.Byte());
  }
  return givens;
}

void Try(Input& input) {
  constexpr std::uint64_t mostNodes = 10'000;
  constexpr long mostPlacements = 500;  // of the slow solver, which is not asked further
  const Layout layout = DrawLayout(input);
  const Grid givens = DrawGivens(Solver(layout).FillWithin(100).grid, input);
  oracle::IndependentSolver slow(OracleLayoutOf(layout));
  const auto expected = slow.CountSolutions(OracleGridOf(givens), 2, mostPlacements);
  if (!expected) return;
  const auto searched = Solver(layout).CompletionsWithin(givens, 2, mostNodes);
  if (!searched) return;
  const auto& found = *searched;
  Require(std::ssize(found) == *expected, "both solvers count the same completions");
  for (const Grid& grid : found) {
    Require(oracle::IsFilling(OracleLayoutOf(layout), OracleGridOf(grid)),
            "a completion is a filling");
  }
  for (const Path path : kPaths) {
    if (!IsAvailable(path)) continue;
    Require(Solver(layout, path).CompletionsWithin(givens, 2, mostNodes) == searched,
            "every path finds the same");
  }
}

}  // namespace
}  // namespace tessel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tessel::fuzz::Input input(data, size);
  tessel::fuzz::Try(input);
  return 0;
}
