// Puzzles to grade, made by the program's own stages.
#pragma once

#include "bench/engine.h"
#include "core/puzzle.h"

namespace tessel {

class PuzzleMaker {
 public:
  // The same puzzle for the same arguments; it has its solution.
  Puzzle Make(bench::LayoutKind layout, bench::ConcealKind conceal, std::uint64_t seed) {
    engine_.SawFillableLayout(layout, seed);
    engine_.Fill(seed);
    const Grid solution = GridOf(engine_.state.WorkGrid);
    engine_.Conceal(conceal, seed);
    CageNumbers cages{};
    std::ranges::copy(engine_.state.CageOfCell, cages.begin());
    return {Layout::FromCages(cages).value(), GridOf(engine_.state.Puzzle), solution};
  }

  // Random, rotational and regular layouts with both rules of concealing, in turn.
  Puzzle MakeAnyKind(std::uint64_t seed) {
    using bench::ConcealKind;
    using bench::LayoutKind;
    static constexpr std::array layouts{LayoutKind::kRandom, LayoutKind::kRotational,
                                        LayoutKind::kRandom, LayoutKind::kRegular};
    const ConcealKind conceal = seed / 4 % 2 == 0 ? ConcealKind::kSingle : ConcealKind::kPairs;
    return Make(layouts[seed % 4], conceal, seed);
  }

 private:
  template <typename Digits>
  static Grid GridOf(const Digits& digits) {
    Grid grid{};
    for (int cell = 0; cell < kCellCount; ++cell) {
      grid[cell] = static_cast<std::uint8_t>(digits[cell]);
    }
    return grid;
  }

  bench::Engine engine_;
};

}  // namespace tessel
