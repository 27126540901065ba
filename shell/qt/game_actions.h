// The entries of the Game menu.
#pragma once

#include "shell/qt/control_panel.h"
#include "shell/qt/menu_bar.h"
#include "shell/tessel_main.h"

namespace tessel {

class GameActions {
 public:
  // All must live as long as the menu bar.
  GameActions(MenuBar& menu, ControlPanel& panel, const Tessel_Main& logic);
};

}  // namespace tessel
