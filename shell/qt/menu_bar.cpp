#include "shell/qt/menu_bar.h"

#include <QAction>
#include <utility>

namespace tessel {

namespace {

QString TextOf(const EntryTraits& traits) {
  QString text = QString::fromUtf8(traits.text);
  if (traits.owner == KeyOwner::kControl) {
    // Qt shows what stands behind a tab where it shows an entry's own keys.
    text += '\t' + QKeySequence(traits.keys).toString(QKeySequence::NativeText);
  }
  return text;
}

}  // namespace

MenuBar::MenuBar(QWidget* parent) : QMenuBar(parent) {
  setObjectName("MenuBar");
  setNativeMenuBar(false);  // a desktop's own bar would have to be asked for over its bus
  AddMenus();
  for (const EntryTraits& traits : kEntryTable) AddEntry(traits);
}

void MenuBar::AddMenus() {
  for (std::size_t i = 0; i < kMenuTitles.size(); ++i) {
    menus_[i] = addMenu(kMenuTitles[i]);
    menus_[i]->menuAction()->setVisible(false);
    connect(menus_[i], &QMenu::aboutToShow, this, &MenuBar::Update);
  }
}

void MenuBar::AddEntry(const EntryTraits& traits) {
  QMenu& menu = *menus_[IndexOf(traits.menu)];
  if (traits.startsGroup) menu.addSeparator();
  QAction* const action = menu.addAction(TextOf(traits));
  action->setCheckable(traits.checkable);
  action->setAutoRepeat(traits.repeats);
  action->setVisible(false);
  connections_[IndexOf(traits.entry)].action = action;
}

void MenuBar::Connect(Entry entry, Act act, Condition canAct) {
  const EntryTraits& traits = TraitsOf(entry);
  Connection& connection = connections_[IndexOf(entry)];
  connection.canAct = std::move(canAct);
  if (traits.owner == KeyOwner::kEntry) {
    connection.action->setShortcuts(QKeySequence::listFromString(traits.keys));
  }
  connection.action->setVisible(true);
  menus_[IndexOf(traits.menu)]->menuAction()->setVisible(true);
  connect(connection.action, &QAction::triggered, this, [this, entry, act = std::move(act)] {
    if (CanAct(entry)) act();
    Update();
  });
  Update();
}

void MenuBar::ConnectSwitch(Entry entry, Condition isOn, Switch turn, Condition canAct) {
  QAction* const action = Of(entry);
  connections_[IndexOf(entry)].isOn = std::move(isOn);
  Connect(
      entry, [action, turn = std::move(turn)] { turn(action->isChecked()); }, std::move(canAct));
}

bool MenuBar::CanAct(Entry entry) const {
  const Condition& canAct = connections_[IndexOf(entry)].canAct;
  const bool isHeard = TraitsOf(entry).menu == Menu::kHelp || isOpen_();
  return canAct && isHeard && canAct();
}

void MenuBar::Update() {
  for (const EntryTraits& traits : kEntryTable) {
    const Connection& connection = connections_[IndexOf(traits.entry)];
    connection.action->setEnabled(CanAct(traits.entry));
    if (connection.isOn) connection.action->setChecked(connection.isOn());
  }
}

}  // namespace tessel
