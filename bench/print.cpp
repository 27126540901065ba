// How long a booklet takes for each of its puzzles.
//   print [PUZZLES]
#include <cstdio>
#include <cstdlib>

#include "bench/wall_time.h"
#include "formats/format.h"
#include "maker/maker.h"
#include "paper/booklet.h"

namespace tessel::bench {
namespace {

using paper::BookletOptions;
using paper::BookletPuzzle;

constexpr int kRounds = 3;

std::vector<BookletPuzzle> MadePuzzles(int count) {
  maker::Maker maker({});
  std::vector<BookletPuzzle> puzzles;
  for (int i = 0; i < count; ++i) {
    puzzles.push_back({.puzzle = maker.Make(1, static_cast<std::uint64_t>(i))});
  }
  return puzzles;
}

std::string PhoneLink(const Puzzle& puzzle, int /*number*/) {
  return formats::FormatNamed("sudokupad")->write({.puzzle = puzzle}).value();
}

// The least of some rounds.
void PrintRow(const char* name, const std::vector<BookletPuzzle>& puzzles,
              const BookletOptions& options) {
  double least = 1e9;
  std::size_t bytes = 0;
  for (int round = 0; round < kRounds; ++round) {
    bytes = 0;
    const auto count = [&](std::span<const unsigned char> some) {
      bytes += some.size();
      return true;
    };
    least = std::min(least,
                     WallSecondsOf([&] { paper::WriteBooklet(puzzles, options, count).value(); }));
  }
  const auto size = static_cast<double>(puzzles.size());
  std::printf("  %-44s %11.3f %9.0f\n", name, 1e3 * least / size,
              static_cast<double>(bytes) / size);
}

}  // namespace
}  // namespace tessel::bench

int main(int argc, char** argv) {
  using namespace tessel::bench;
  const int count = argc > 1 ? std::atoi(argv[1]) : 1000;
  const auto puzzles = MadePuzzles(count);
  std::printf("\nBooklets of %d puzzles, wall time       ms a puzzle     bytes\n", count);
  BookletOptions options;
  PrintRow("four a page, solutions at the back", puzzles, options);
  options.perPage = 12;
  PrintRow("twelve a page", puzzles, options);
  options.perPage = 4;
  options.tint = tessel::paper::Tint::kColour;
  options.marks = true;
  PrintRow("four a page, tints and pencil marks", puzzles, options);
  options.link = PhoneLink;
  PrintRow("and codes for a phone", puzzles, options);
}
