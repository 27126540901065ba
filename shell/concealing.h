// The window's half of concealing: seeding, the digits on the board, the caption, the beep.
#pragma once

#include "core/form.h"
#include "core/game_state.h"
#include "core/random_source.h"
#include "search/exact_cover_search.h"

namespace tessel {

class Concealing {
 public:
  Concealing(GameState& state, Form& form, View& view, RandomSource& random, Clock& clock,
             ExactCoverSearch& search)
      : state_(state), form_(form), view_(view), random_(random), clock_(clock), search_(search) {}

  // WorkGrid must hold a complete solution; it holds it again on return. True when concealing ran
  // to its end and Puzzle holds the givens; false when StopRequested was set, which is cleared.
  bool ConcealCells2ValidTessel();

 private:
  void Complete(const Grid& givens);
  void ClearDigits();

  GameState& state_;
  Form& form_;
  View& view_;
  RandomSource& random_;
  Clock& clock_;
  ExactCoverSearch& search_;
};

}  // namespace tessel
