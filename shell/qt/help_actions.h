// The entries of the menu Help.
#pragma once

#include <functional>

#include "shell/qt/menu_bar.h"
#include "shell/qt/page_dialog.h"
#include "shell/tessel_main.h"

namespace tessel {

class HelpActions {
 public:
  // Everything must live as long as the menu gets events. The dialogs belong to `window`.
  HelpActions(MenuBar& menu, QWidget& window, const Tessel_Main& logic);

  void OpenHelp();

 private:
  void OpenTechniques();
  void OpenKeys();
  void OpenAbout();
  using Fill = std::function<void(QTextBrowser& page)>;
  // Opens the dialog, or a new one, filled, where there is none yet.
  PageDialog* Open(PageDialog* dialog, const char* name, QSize size, const Fill& fill);

  MenuBar& menu_;
  QWidget& window_;
  const Tessel_Main& logic_;
  PageDialog* help_ = nullptr;
  PageDialog* techniques_ = nullptr;
  PageDialog* keys_ = nullptr;
  PageDialog* about_ = nullptr;
};

}  // namespace tessel
