// The hint button: one click, at most one hint.
#pragma once

#include <string>

#include "core/form.h"
#include "core/game_state.h"
#include "core/sounds.h"
#include "hints/technique.h"

namespace tessel {

class HintButton {
 public:
  HintButton(GameState& state, Form& form, Sounds& sounds)
      : state_(state), form_(form), sounds_(sounds) {}

  // Needs a complete layout, and the solution of every cell in PlayBoard.
  void CommandHint_Click();

 private:
  // Each tells of what it finds and returns true, or does nothing and returns false.
  bool RevealAssignment();
  bool ReportWrongDigit();
  bool ReportMisplacedCandidate(const MarkedBoard& board);
  bool ClimbLadder(const MarkedBoard& board);

  // Plays the sound, colours the captions of the cell and writes the sentence.
  void PointAt(int cell, Sound sound, const std::string& sentence);

  GameState& state_;
  Form& form_;
  Sounds& sounds_;
};

}  // namespace tessel
