// The menu bar: its keys, what it shows, and when it acts.
#include "shell/qt/menu_bar.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QMessageBox>
#include <QShortcut>
#include <set>

#include "tests/qt/window_program.h"

namespace tessel {
namespace {

MenuBar& BarOf(WindowProgram& program) {
  return *program.Find<MenuBar>("MenuBar");
}

bool IsEnabled(WindowProgram& program, Entry entry) {
  return BarOf(program).Of(entry)->isEnabled();
}

// The letter behind the ampersand.
QChar MnemonicOf(const QString& text) {
  const qsizetype at = text.indexOf('&');
  return at < 0 ? QChar() : text[at + 1].toUpper();
}

TEST(MenuTable, NoTwoEntriesOfAMenuShareAMnemonic) {
  std::set<std::pair<Menu, QChar>> taken;
  for (const EntryTraits& traits : kEntryTable) {
    const QChar letter = MnemonicOf(traits.text);
    EXPECT_FALSE(letter.isNull()) << traits.text;
    EXPECT_TRUE(taken.emplace(traits.menu, letter).second) << traits.text;
  }
}

TEST(MenuTable, NoKeyHasTwoOwners) {
  WindowProgram program;
  std::set<QKeySequence> taken;
  for (const auto* shortcut : program.window.findChildren<QShortcut*>()) {
    EXPECT_TRUE(taken.insert(shortcut->key()).second) << shortcut->key().toString().toStdString();
  }
  for (const char* title : kMenuTitles) {
    EXPECT_TRUE(taken.insert(QKeySequence::mnemonic(title)).second) << title;
  }
  for (const EntryTraits& traits : kEntryTable) {
    for (const QKeySequence& keys : QKeySequence::listFromString(traits.keys)) {
      if (keys.isEmpty()) continue;
      EXPECT_NE(keys[0].key(), Qt::Key_unknown) << traits.keys;
      const bool isFree = taken.insert(keys).second;
      EXPECT_EQ(isFree, traits.owner == KeyOwner::kEntry) << traits.keys;
    }
  }
}

TEST(MenuBar, ShowsOnlyWhatIsConnected) {
  QWidget window;
  MenuBar menu(&window);
  for (const QAction* title : menu.actions()) EXPECT_FALSE(title->isVisible());
  menu.Connect(Entry::kFullScreen, [] {});
  for (const EntryTraits& traits : kEntryTable) {
    const bool isConnected = traits.entry == Entry::kFullScreen;
    EXPECT_EQ(menu.Of(traits.entry)->isVisible(), isConnected) << traits.text;
    EXPECT_EQ(menu.Of(traits.entry)->isEnabled(), isConnected) << traits.text;
    EXPECT_EQ(!menu.Of(traits.entry)->shortcut().isEmpty(), isConnected) << traits.text;
  }
  EXPECT_TRUE(menu.actions()[static_cast<int>(Menu::kView)]->isVisible());
  EXPECT_FALSE(menu.actions()[static_cast<int>(Menu::kPuzzle)]->isVisible());
}

TEST(MenuBar, ActsExactlyWhileItsConditionHolds) {
  QWidget window;
  MenuBar menu(&window);
  bool can = false;
  int acted = 0;
  menu.Connect(
      Entry::kNew, [&] { ++acted; }, [&] { return can; });
  menu.Of(Entry::kNew)->trigger();
  EXPECT_EQ(acted, 0);
  can = true;
  menu.Update();
  menu.Of(Entry::kNew)->trigger();
  EXPECT_EQ(acted, 1);
  can = false;  // and nobody says so
  menu.Of(Entry::kNew)->trigger();
  EXPECT_EQ(acted, 1);
  EXPECT_FALSE(menu.Of(Entry::kNew)->isEnabled());
}

TEST(MenuBar, SwitchShowsWhatIsOnAndTurnsIt) {
  QWidget window;
  MenuBar menu(&window);
  bool on = true;
  menu.ConnectSwitch(
      Entry::kSounds, [&] { return on; }, [&](bool turned) { on = turned; });
  EXPECT_TRUE(menu.Of(Entry::kSounds)->isChecked());
  menu.Of(Entry::kSounds)->trigger();
  EXPECT_FALSE(on);
  on = true;
  menu.Update();
  EXPECT_TRUE(menu.Of(Entry::kSounds)->isChecked());
}

TEST(MenuBar, OnlyHelpIsHeardWhileTheProgramIsBusy) {
  QWidget window;
  MenuBar menu(&window);
  menu.SetOpen([] { return false; });
  menu.Connect(Entry::kNew, [] {});
  menu.Connect(Entry::kHelp, [] {});
  EXPECT_FALSE(menu.Of(Entry::kNew)->isEnabled());
  EXPECT_TRUE(menu.Of(Entry::kHelp)->isEnabled());
}

TEST(MenuBar, EntriesOfTheGameFollowItsControls) {
  WindowProgram program;
  for (const Entry entry : {Entry::kRestart, Entry::kHint, Entry::kSolution, Entry::kQuit}) {
    EXPECT_FALSE(IsEnabled(program, entry)) << TraitsOf(entry).text;
  }
  program.OpenPuzzle();
  for (const Entry entry : {Entry::kRestart, Entry::kHint, Entry::kSolution, Entry::kQuit}) {
    EXPECT_TRUE(IsEnabled(program, entry)) << TraitsOf(entry).text;
  }
  BarOf(program).Of(Entry::kSolution)->trigger();
  EXPECT_EQ(program.State().PlayBoard.Board, program.State().PlayBoard.Solution);
  EXPECT_FALSE(IsEnabled(program, Entry::kSolution));
  EXPECT_FALSE(IsEnabled(program, Entry::kHint));
  BarOf(program).Of(Entry::kRestart)->trigger();
  EXPECT_EQ(program.State().PlayBoard, program.State().SavedPuzzle);
  BarOf(program).Of(Entry::kHint)->trigger();
  EXPECT_NE(program.Display().TextHint(), texts::kPressHint);
}

TEST(MenuBar, RunningCommandLeavesHelpAlone) {
  WindowProgram program;
  program.Click("CommandSaw");
  program.ClickBox("CheckVisualize");
  bool wasExit = true;
  bool wasHelp = false;
  QTimer::singleShot(0, &program.window, [&] {
    wasExit = IsEnabled(program, Entry::kExit);
    wasHelp = IsEnabled(program, Entry::kHelp);
    program.Click("CommandGo");
  });
  program.Click("CommandGo");
  EXPECT_FALSE(wasExit);
  EXPECT_TRUE(wasHelp);
  EXPECT_TRUE(IsEnabled(program, Entry::kExit));
}

TEST(MenuBar, QuestionClosesEveryMenuButHelp) {
  WindowProgram program;
  program.OpenPuzzle();
  bool wasQuit = true;
  QTimer::singleShot(0, &program.window, [&] {
    wasQuit = IsEnabled(program, Entry::kQuit);
    auto* const question = program.window.findChild<QMessageBox*>();
    ASSERT_NE(question, nullptr);
    question->button(QMessageBox::No)->click();
  });
  BarOf(program).Of(Entry::kQuit)->trigger();
  EXPECT_FALSE(wasQuit);
  EXPECT_TRUE(IsEnabled(program, Entry::kQuit));
}

}  // namespace
}  // namespace tessel
