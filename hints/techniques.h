// The techniques of the hint ladder. They only look: each stops at the first pattern of its own
// fixed search order, writes the hint result fields that its kind needs and returns true, or
// returns false and writes nothing.
#pragma once

#include "core/game_state.h"
#include "hints/subset.h"

namespace tessel {

class HintTechniques {
 public:
  explicit HintTechniques(GameState& state) : state_(state) {}

  bool NakedSingle();
  bool HiddenSingle();
  bool PointingPair();
  bool BoxLine();
  // Naked subsets of 2 to 5 cells, hidden subsets of 2 and 3 digits; any other size finds nothing.
  bool NakedHidden(Subset Naked, CountSubset count);
  bool XWing();
  bool SwordFish();

 private:
  GameState& state_;
};

}  // namespace tessel
