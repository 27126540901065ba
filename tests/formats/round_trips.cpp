// tessel-round-trips [PUZZLES [SEED]]: sends so many puzzles (100,000 unless told) through every
// pair of formats that are read, the same puzzle through all of them. Every tenth has the boxes for
// cages.
#include <cstdio>
#include <cstdlib>

#include "tests/formats/pairs.h"
#include "tests/formats/random_puzzle.h"

namespace {

using namespace tessel::formats;

void TryAllPairs(const tessel::Puzzle& puzzle, PairTally& tally) {
  for (const Format& first : AllFormats()) {
    for (const Format& second : AllFormats()) {
      if (first.IsRead() && second.IsRead()) TryPair(first, second, puzzle, tally);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::uint64_t puzzles = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 100'000;
  const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  PairTally tally;
  for (std::uint64_t index = 0; index < puzzles && tally.first.empty(); ++index) {
    const auto made =
        index % 10 == 0 ? RandomRegularPuzzle(seed, index) : RandomPuzzle(seed, index);
    TryAllPairs(made.puzzle, tally);
  }
  if (!tally.first.empty()) {
    std::printf("%s\n", tally.first.c_str());
    return 1;
  }
  std::printf("%llu puzzles: %ld round trips equal, %ld refused by a writer\n",
              static_cast<unsigned long long>(puzzles), tally.equal, tally.refused);
  return 0;
}
