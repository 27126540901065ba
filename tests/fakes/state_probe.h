// Reaches into a program's state, to put it where a rule must hold that play would reach late or
// not at all. Whoever only looks asks Tessel_Main.
#pragma once

#include "shell/tessel_main.h"

namespace tessel {

class StateProbe {
 public:
  static GameState& Of(Tessel_Main& main) { return main.state_; }
};

}  // namespace tessel
