// The menu bar, built from the table of its entries.
#pragma once

#include <QMenuBar>
#include <array>
#include <functional>

#include "shell/qt/menu_table.h"

class QAction;

namespace tessel {

class MenuBar final : public QMenuBar {
  Q_OBJECT

 public:
  explicit MenuBar(QWidget* parent);

  // Whether the program hears commands now. Where it does not, every menu but Help is disabled.
  void SetOpen(std::function<bool()> isOpen) { isOpen_ = std::move(isOpen); }

  // An entry appears, with its keys, once it is connected. It is enabled exactly while `canAct`
  // says so; both functions must live as long as the bar. `canAct` is asked often and must be
  // quick.
  using Act = std::function<void()>;
  using Condition = std::function<bool()>;
  void Connect(
      Entry entry, Act act, Condition canAct = [] { return true; });
  // For a checkable entry, which shows what `isOn` says.
  using Switch = std::function<void(bool on)>;
  void ConnectSwitch(
      Entry entry, Condition isOn, Switch turn, Condition canAct = [] { return true; });

  // Enables and ticks the entries as their conditions are now. It is called whenever the window
  // shows what has changed and when a menu opens; whoever changes a condition otherwise calls it.
  void Update();

  QAction* Of(Entry entry) const { return connections_[IndexOf(entry)].action; }

 private:
  struct Connection {
    QAction* action = nullptr;
    Condition canAct;  // none while the entry is not connected
    Condition isOn;
  };
  void AddMenus();
  void AddEntry(const EntryTraits& traits);
  bool CanAct(Entry entry) const;

  std::array<QMenu*, kMenuTitles.size()> menus_{};
  std::array<Connection, kEntryTable.size()> connections_;
  std::function<bool()> isOpen_ = [] { return true; };
};

}  // namespace tessel
