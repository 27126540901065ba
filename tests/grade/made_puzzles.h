// Puzzles to grade: many, and quickly made.
#pragma once

#include "bench/engine.h"
#include "core/puzzle.h"
#include "solver/conceal.h"

namespace tessel::grade {

class PuzzleMaker {
 public:
  // The same puzzle for the same arguments; it has its solution.
  Puzzle Make(bench::LayoutKind layout, solver::ConcealRule rule, std::uint64_t seed) {
    RandomStream random(seed);
    Puzzle puzzle = Filled(layout, random);
    puzzle.givens = solver::Conceal(solver_, *puzzle.solution, rule, random);
    return puzzle;
  }

  // Random, rotational and regular layouts with both rules of concealing, in turn.
  Puzzle MakeAnyKind(std::uint64_t seed) {
    using bench::LayoutKind;
    using solver::ConcealRule;
    static constexpr std::array layouts{LayoutKind::kRandom, LayoutKind::kRotational,
                                        LayoutKind::kRandom, LayoutKind::kRegular};
    return Make(layouts[seed % 4], seed / 4 % 2 == 0 ? ConcealRule::kSingle : ConcealRule::kPairs,
                seed);
  }

 private:
  // Draws layouts until one has a filling.
  Puzzle Filled(bench::LayoutKind kind, RandomStream& random) {
    while (true) {
      engine_.SawAnyLayout(kind, random.Next());
      const Layout& layout = engine_.layout;
      solver_.Use(layout);
      const solver::Filling filling = solver_.Fill(random, kMaxNodes);
      if (filling.answer == solver::Answer::kYes) return {layout, {}, filling.grid};
    }
  }

  static constexpr std::uint64_t kMaxNodes = 100'000;

  bench::Engine engine_;
  solver::Solver solver_{Layout::Regular()};
};

}  // namespace tessel::grade
