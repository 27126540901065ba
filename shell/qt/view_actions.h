// The entries of the View menu. What they choose is kept in the preferences.
#pragma once

#include "shell/qt/board_widget.h"
#include "shell/qt/control_panel.h"
#include "shell/qt/menu_bar.h"
#include "shell/qt/preferences.h"
#include "shell/qt/sound_switch.h"

namespace tessel {

// What the entries act on; all must live as long as the menu bar.
struct ViewTargets {
  QWidget& window;
  BoardWidget& board;
  ControlPanel& panel;
  const Form& form;
  Preferences& preferences;
  SoundSwitch* sounds;  // null where there are none to switch
};

// Connects the entries, and makes the window look as it was chosen last.
void ConnectViewMenu(MenuBar& menu, const ViewTargets& targets);

// The colours that the player wants cages in.
const CageColours& ChosenColours(const Preferences& preferences);

// Whether the program may be heard.
bool WantsSounds(const Preferences& preferences);

}  // namespace tessel
