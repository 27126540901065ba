// The hint button: one click, at most one hint.
#pragma once

#include <string>

#include "core/form.h"
#include "core/game_state.h"
#include "core/sounds.h"

namespace tessel {

class HintButton {
 public:
  HintButton(GameState& state, Form& form, Sounds& sounds)
      : state_(state), form_(form), sounds_(sounds) {}

  void CommandHint_Click();

  // Neither has a caller: WriteHint does nothing, AddText appends to the spare box Text1.
  void WriteHint();
  void AddText(const std::string& TextLine);

 private:
  // Each writes its message and returns true, or does nothing and returns false.
  bool RevealAssignment();
  bool ReportMistake(bool (*isMistaken)(const GameState&, int cell), Sound sound,
                     std::string (*message)(const GameState&, int cell));
  bool ClimbLadder();
  void PointAt(int cell, Sound sound, const std::string& message);

  GameState& state_;
  Form& form_;
  Sounds& sounds_;
};

}  // namespace tessel
