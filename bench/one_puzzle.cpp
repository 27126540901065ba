// one_puzzle SEED: makes a puzzle with nothing but core, layout and search, and prints its givens
// and the cage of each cell.
#include <cstdio>
#include <cstdlib>

#include "layout/cage_generator.h"
#include "search/conceal.h"
#include "search/fill.h"
#include "search/random_restarts.h"

namespace {

void Print(const tessel::PerCell<std::uint8_t>& numbers, char end) {
  for (const int number : numbers) std::putchar(number == 0 ? '.' : '0' + number);
  std::putchar(end);
}

// Gives up where the watched search finds no filling soon.
bool CanBeFilled(const tessel::Layout& layout) {
  using tessel::RandomRestarts;
  tessel::ExactCoverSearch search(layout);
  tessel::SeededRandom random;
  RandomRestarts restarts(search, random, tessel::Unwatched());
  return restarts.Run(400'000) == RandomRestarts::Result::kFilled;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace tessel;
  if (argc != 2) return EXIT_FAILURE;
  SeededRandom random(std::strtoull(argv[1], nullptr, 10));
  const Layout layout = Saw(LayoutSymmetry::kNone, random, CanBeFilled).value();
  const Grid solution = Fill(layout, random).value();
  const Grid givens = Conceal(layout, solution, ConcealMode::kSingle, random).value();
  Print(givens, ' ');
  Print(layout.Cages(), '\n');
  return HasUniqueSolution(layout, givens) ? EXIT_SUCCESS : EXIT_FAILURE;
}
