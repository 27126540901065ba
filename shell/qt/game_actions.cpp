#include "shell/qt/game_actions.h"

namespace tessel {

GameActions::GameActions(MenuBar& menu, ControlPanel& panel, const Tessel_Main& logic) {
  const auto press = [&](Entry entry, Button button) {
    menu.Connect(
        entry, [&panel, button] { panel.Of(button)->click(); },
        [&logic, button] { return logic.AcceptsInput(button); });
  };
  press(Entry::kRestart, Button::CommandRestart);
  press(Entry::kHint, Button::CommandHint);
  press(Entry::kSolution, Button::CommandSolution);
  press(Entry::kQuit, Button::CommandQuit);
}

}  // namespace tessel
