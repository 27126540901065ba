// A puzzle through two formats: written, read, written in the other, read.
#pragma once

#include <string>

#include "formats/format.h"

namespace tessel::formats {

struct PairTally {
  long equal = 0;
  long refused = 0;   // by a writer, which said so
  std::string first;  // what went wrong first; empty: nothing
};

// Whether the cages are the same sets of cells, however they are numbered.
inline bool SamePartition(const Layout& a, const Layout& b) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int first = a.CellsOf(a.CageOf(cell))[0];
    if (first != b.CellsOf(b.CageOf(cell))[0]) return false;
  }
  return true;
}

// The puzzle as that format brings it back; nothing where its writer refuses.
inline std::optional<Puzzle> Through(const Format& format, const Puzzle& puzzle, PairTally& tally) {
  const Writing writing = format.write({.puzzle = puzzle});
  if (!writing) {
    ++tally.refused;
    return std::nullopt;
  }
  const Reading reading = format.read(*writing);
  if (!reading && tally.first.empty()) {
    tally.first = std::string(format.name) + ": " + *writing + reading.error().expected + ", " +
                  reading.error().found;
  }
  return reading ? std::optional(reading->puzzle) : std::nullopt;
}

inline void TryPair(const Format& first, const Format& second, const Puzzle& puzzle,
                    PairTally& tally) {
  const auto between = Through(first, puzzle, tally);
  if (!between) return;
  const auto last = Through(second, *between, tally);
  if (!last) return;
  Puzzle expected = puzzle;
  const bool keepsSolution =
      first.carries.Has(Detail::kSolution) && second.carries.Has(Detail::kSolution);
  if (!keepsSolution) expected.solution.reset();
  if (last->givens == expected.givens && last->solution == expected.solution &&
      SamePartition(last->layout, expected.layout)) {
    ++tally.equal;
  } else if (tally.first.empty()) {
    tally.first = std::string(first.name) + " to " + std::string(second.name) + " changed one";
  }
}

}  // namespace tessel::formats
