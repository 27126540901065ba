// The window's half of sawing: seeding, painting, the beep.
#pragma once

#include "core/form.h"
#include "core/game_state.h"
#include "core/random_source.h"
#include "layout/cage_generator.h"

namespace tessel {

class Sawing {
 public:
  Sawing(GameState& state, Form& form, View& view, RandomSource& random, Clock& clock,
         AcceptLayout accept);

  // On return CageOfCell and CageCells hold a complete accepted layout, every cell is painted in
  // its cage's colour and the beep has sounded. Reads the box Rotational once an attempt and
  // CheckVisualize at every claimed cell. Returns only when it has succeeded.
  void BuildTesselPattern();
  // The nine 3x3 boxes, painted; no beep.
  void BuildRegularLayout();

 private:
  void PaintAll();

  GameState& state_;
  Form& form_;
  View& view_;
  RandomSource& random_;
  Clock& clock_;
  AcceptLayout accept_;
};

}  // namespace tessel
