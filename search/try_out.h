// Short searches of an empty layout in random cell orders.
//
// Most orders of an irregular layout lead into searches that would not end in practice, while every
// layout that can be filled has orders that end quickly. So orders are drawn until a search of the
// same engine ends within a limit.
#pragma once

#include <cstdint>

#include "core/game_state.h"
#include "core/random_source.h"
#include "core/view.h"
#include "search/exact_cover_search.h"

namespace tessel {

// Iterations of one try-out, without those that only leave a level. Over 1,500 random layouts that
// can be filled, the iterations of all tries until one ends are 11,300 in the mean (99.9 %:
// 307,000) with a limit of 500, 15,000 (274,000) with 1,000, 20,700 (381,000) with 2,000 and 75,700
// (1,047,000) with 20,000.
inline constexpr std::int64_t kTryOutLimit = 500;

// A layout for which all try-outs together found no filling within this many iterations is taken to
// have none. Of 20,000 random layouts 372 went beyond it, and all but 17 of these have none.
inline constexpr std::int64_t kSolvabilityBound = 400'000;

class TryOut {
 public:
  enum class End : std::uint8_t {
    kFilled,      // the solution stands in the search's top level, the order in Order()
    kStopped,     // StopRequested was set
    kImpossible,  // the layout has no filling
    kGivenUp,     // the iterations allowed were used up
  };

  TryOut(GameState& state, View& view, RandomSource& random, ExactCoverSearch& search)
      : state_(state), view_(view), random_(random), search_(search) {}

  // Draws orders until one ends within kTryOutLimit iterations, or all tries together have taken
  // `allowed` iterations. Pumps once an iteration.
  End Run(std::int64_t allowed);
  // The order drawn last: 0..80 after 500 random swaps.
  const PerCell<std::int16_t>& Order() const { return order_; }

 private:
  void DrawOrder();

  GameState& state_;
  View& view_;
  RandomSource& random_;
  ExactCoverSearch& search_;
  PerCell<std::int16_t> order_{};
};

// Whether a filling of the finished layout is found within kSolvabilityBound. The answer depends on
// the layout alone: the orders are drawn from a fixed seed.
bool AdmitsFilling(GameState& state, View& view, ExactCoverSearch& search);

}  // namespace tessel
