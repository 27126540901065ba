// The hint pass for marks that the player keeps by hand: it solves silently on a copy of the marks
// until it meets a single, and announces that cell.
#pragma once

#include "core/form.h"
#include "core/game_state.h"
#include "core/sounds.h"
#include "hints/subset.h"

namespace tessel {

class SpecialPass {
 public:
  SpecialPass(GameState& state, Form& form, Sounds& sounds)
      : state_(state), form_(form), sounds_(sounds) {}

  void SpecialHint();

  // The techniques, on SpecialMarks alone. The singles only report; the others make an elimination
  // and return true only when a mask has changed.
  bool SpHiddenSingle();
  bool SpNakedSingle();
  bool SpPointingPair();
  bool SpBoxLine();
  bool SpNakedHidden(CountSubset count, Subset Naked);

  // Shows every mark in one of two colours. No command invokes it.
  void SpecialPencilmarks(bool highlighted);

 private:
  void Announce();
  bool MakeElimination();
  void RemoveMark(int cell, int digit);

  GameState& state_;
  Form& form_;
  Sounds& sounds_;
};

}  // namespace tessel
