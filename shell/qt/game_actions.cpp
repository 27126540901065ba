#include "shell/qt/game_actions.h"

#include <QAction>

namespace tessel {

GameActions::GameActions(MenuBar& menu, ControlPanel& panel, QWidget& board, Tessel_Main& logic,
                         std::function<void()> sync)
    : menu_(menu) {
  menu.Connect(
      Entry::kUndo, [&logic, sync] { logic.Undo(), sync(); }, [&logic] { return logic.CanUndo(); });
  menu.Connect(
      Entry::kRedo, [&logic, sync] { logic.Redo(), sync(); }, [&logic] { return logic.CanRedo(); });
  const auto resume = [&logic, &board, sync] {
    logic.ContinueLastGame();
    sync();
    if (logic.Display().SolveButtonsVisible()) board.setFocus(Qt::TabFocusReason);
  };
  menu.Connect(Entry::kContinue, resume, [&logic] { return logic.CanContinue(); });
  Join(*panel.Undo(), Entry::kUndo);
  Join(*panel.Redo(), Entry::kRedo);
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

void GameActions::Join(QPushButton& button, Entry entry) {
  QAction* const action = menu_.Of(entry);
  QObject::connect(&button, &QPushButton::clicked, action, &QAction::trigger);
  const auto follow = [&button, action] { button.setEnabled(action->isEnabled()); };
  QObject::connect(action, &QAction::changed, &button, follow);
  follow();
}

}  // namespace tessel
