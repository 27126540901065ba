// The pencil marks of the solving mode.
#pragma once

#include "core/form.h"
#include "core/game_state.h"

namespace tessel {

class CandidateMarks {
 public:
  CandidateMarks(GameState& state, Form& form) : state_(state), form_(form) {}

  // Both end a pending assignment, redraw every cell from PlayBoard and caption the hint button
  // "Hint". An empty cell shows its candidates (On) or all nine marks (Off).
  void SwitchPencilmarksOn();
  void SwitchPencilmarksOff();

 private:
  // An empty cell shows its mask in `shown`.
  void Refresh(const MaskBoard& shown);

  GameState& state_;
  Form& form_;
};

}  // namespace tessel
