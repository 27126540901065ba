// puzzles N irregular|regular SEED: makes N puzzles from seeds and prints them, a line each: the
// givens, and the cage of each cell.
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "bench/engine.h"

namespace tessel::bench {
namespace {

template <typename Numbers>
void PrintDigits(const Numbers& numbers, char end) {
  for (const int number : numbers) std::putchar(number == 0 ? '.' : '0' + number);
  std::putchar(end);
}

void MakePuzzles(int puzzles, LayoutKind kind, std::uint64_t firstSeed) {
  Engine engine;
  for (int i = 0; i < puzzles; ++i) {
    const std::uint64_t seed = firstSeed + static_cast<std::uint64_t>(i);
    engine.SawFillableLayout(kind, seed);
    engine.FillLayout(seed);
    engine.ConcealSolution(ConcealMode::kSingle, seed);
    PrintDigits(engine.givens, ' ');
    PrintDigits(engine.layout.Cages(), '\n');
  }
}

}  // namespace
}  // namespace tessel::bench

int main(int argc, char** argv) {
  using namespace tessel::bench;
  if (argc != 4) return EXIT_FAILURE;
  const auto kind =
      std::string_view(argv[2]) == "regular" ? LayoutKind::kRegular : LayoutKind::kRandom;
  MakePuzzles(std::atoi(argv[1]), kind, std::strtoull(argv[3], nullptr, 10));
}
