// The entries of the Game menu, with the buttons that stand for two of them, and the one that
// continues a game.
#pragma once

#include <functional>

#include "shell/qt/control_panel.h"
#include "shell/qt/menu_bar.h"
#include "shell/tessel_main.h"

namespace tessel {

class GameActions {
 public:
  // `sync` shows what the logic has changed. All must live as long as the menu bar.
  GameActions(MenuBar& menu, ControlPanel& panel, QWidget& board, Tessel_Main& logic,
              std::function<void()> sync);

 private:
  // The button triggers the entry, and is enabled while that is.
  void Join(QPushButton& button, Entry entry);

  MenuBar& menu_;
};

}  // namespace tessel
