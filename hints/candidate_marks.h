// The pencil marks of the solving mode, and candidate removal with its undo record.
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

  // Pushes an undo step for placing `Candidate` in `Cell` and removes it from the cells at
  // positions 0..RemovePtr of CellList that share a house with `Cell`. No command invokes it.
  void RemoveCandidates(int Cell, int Candidate, int RemovePtr);
  // Takes the newest step back; does nothing when there is none. No command invokes it.
  void Undo();

 private:
  // An empty cell shows its mask in `shown`.
  void Refresh(const MaskBoard& shown);

  GameState& state_;
  Form& form_;
};

}  // namespace tessel
