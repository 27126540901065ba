// How the window shares its room among board, controls and foot line.
#pragma once

#include <QSize>

#include "shell/qt/control_panel.h"

class QBoxLayout;

namespace tessel {

class BoardWidget;
class FootLine;
class MenuBar;

class WindowLayout {
 public:
  // Lays the parts out in the window; all are its children.
  WindowLayout(QWidget& window, MenuBar& menu, BoardWidget& board, ControlPanel& panel,
               FootLine& foot);

  // For the window's size as it is now: the panel stands beside the board where it is not too high
  // for that and the board is no smaller than above it.
  void Arrange();

 private:
  using Arrangement = ControlPanel::Arrangement;

  // What is left for board and panel.
  QSize Room() const;
  Arrangement BestFor(QSize room) const;
  int UseSpareRoom(QSize room, Arrangement arrangement);

  QWidget& window_;
  MenuBar& menu_;
  ControlPanel& panel_;
  FootLine& foot_;
  QBoxLayout* boardAndPanel_;
};

}  // namespace tessel
