// The window's half of filling: seeding, drawing, the caption.
#pragma once

#include "core/form.h"
#include "core/game_state.h"
#include "core/random_source.h"
#include "search/exact_cover_search.h"

namespace tessel {

class Filling {
 public:
  Filling(GameState& state, Form& form, View& view, RandomSource& random, Clock& clock,
          ExactCoverSearch& search)
      : state_(state), form_(form), view_(view), random_(random), clock_(clock), search_(search) {}

  // True when a solution was found: it is drawn and copied into WorkGrid, and the caption tells the
  // time. False when StopRequested was set, which is cleared, or the layout has no filling:
  // WorkGrid and the caption are left as they stand. A visualised fill is drawn once it is found.
  bool GenerateTessel();

 private:
  GameState& state_;
  Form& form_;
  View& view_;
  RandomSource& random_;
  Clock& clock_;
  ExactCoverSearch& search_;
};

}  // namespace tessel
