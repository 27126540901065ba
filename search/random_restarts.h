// Short searches of an empty layout in random cell orders.
//
// Most orders of an irregular layout lead to searches that would not end in practice, while every
// layout that can be filled has orders that end quickly. So orders are drawn until one search ends
// within a cutoff: random restarts, as they are called elsewhere.
#pragma once

#include <cstdint>
#include <optional>

#include "core/progress.h"
#include "core/random_source.h"
#include "search/exact_cover_search.h"

namespace tessel {

// The most iterations of one try, without those that only leave a level. `bench_limits` measured
// the iterations of all tries until one ends, over 1,500 random layouts that can be filled:
//
//   cutoff      mean    99.9 %
//      500    11,300   307,000
//    1,000    15,000   274,000
//    2,000    20,700   381,000
//   20,000    75,700 1,047,000
inline constexpr std::int64_t kRestartCutoff = 500;

class RandomRestarts {
 public:
  enum class Result : std::uint8_t {
    kFilled,      // the solution stands in the search's top level, the order in Order()
    kStopped,     // `progress` asked for it
    kImpossible,  // the layout has no filling
    kGivenUp,     // the iterations allowed were used up
  };

  // Draws from `random`, which is seeded by the caller.
  RandomRestarts(ExactCoverSearch& search, RandomSource& random, Progress& progress)
      : search_(search), random_(random), progress_(progress) {}

  // Draws orders until a search ends within kRestartCutoff iterations, or all of them together have
  // taken `allowed` iterations.
  Result Run(std::int64_t allowed);
  // The order drawn last: 0..80 after 500 random swaps.
  const CellOrder& Order() const { return order_; }

 private:
  void DrawOrder();

  ExactCoverSearch& search_;
  RandomSource& random_;
  Progress& progress_;
  CellOrder order_{};
};

}  // namespace tessel
