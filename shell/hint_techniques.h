// The techniques of the hint ladder by their names, on the player's board. They only look: each
// stops at the first hint of its own fixed order, writes the hint result fields that its kind needs
// and returns true, or returns false and writes nothing.
#pragma once

#include "core/game_state.h"
#include "hints/ladder.h"
#include "shell/subset_arguments.h"

namespace tessel {

class HintTechniques {
 public:
  // The layout must be complete whenever a technique is asked.
  explicit HintTechniques(GameState& state) : state_(state) {}

  bool NakedSingle() { return Find(&kNakedSingle); }
  bool HiddenSingle() { return Find(&kHiddenSingle); }
  bool PointingPair() { return Find(&kPointingPair); }
  bool BoxLine() { return Find(&kBoxLine); }
  // Naked subsets of 2 to 5 cells, hidden subsets of 2 and 3 digits; any other size finds nothing.
  bool NakedHidden(Subset Naked, CountSubset count) {
    return Find(SubsetTechnique(Naked, count.size));
  }
  bool XWing() { return Find(&kXWing); }
  bool SwordFish() { return Find(&kSwordFish); }

 private:
  bool Find(const Technique* technique);

  GameState& state_;
};

}  // namespace tessel
