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
  GameState& state_;
  Form& form_;
  Sounds& sounds_;
};

}  // namespace tessel
