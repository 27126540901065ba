// Procedures that belong to the program by name and that no command invokes. They do what they
// always did; nothing is to be built on them.
#pragma once

#include <string>

#include "core/form.h"
#include "core/game_state.h"

namespace tessel {

class Vestiges {
 public:
  Vestiges(GameState& state, Form& form) : state_(state), form_(form) {}

  // Pushes an undo step for placing `Candidate` (1..9) in `Cell` (0..80) and removes it from the
  // cells at positions 0..RemovePtr (at most 80) of CellList that share a house with `Cell`.
  void RemoveCandidates(int Cell, int Candidate, int RemovePtr);
  // Takes the newest step back; does nothing when there is none.
  void Undo();

  // Does nothing.
  void WriteHint();
  // Appends to the spare box Text1.
  void AddText(const std::string& TextLine);
  // Shows every mark in one of two colours.
  void SpecialPencilmarks(bool highlighted);

 private:
  GameState& state_;
  Form& form_;
};

}  // namespace tessel
