// The menus as assistive programs and players without a mouse find them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMenu>
#include <algorithm>

#include "shell/qt/menu_bar.h"
#include "tests/qt/accessible_tree.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

using Names = std::vector<std::string>;
using testing::ElementsAre;
using testing::ElementsAreArray;

// The entries of that menu, lines left out.
std::vector<QAccessibleInterface*> EntriesOf(QAccessibleInterface* bar, Menu menu) {
  QAccessibleInterface* const title = bar->child(static_cast<int>(menu));
  EXPECT_EQ(title->childCount(), 1);
  EXPECT_EQ(title->child(0)->role(), QAccessible::PopupMenu);
  std::vector<QAccessibleInterface*> entries = TreeOf(title->child(0));
  entries.erase(entries.begin());
  std::erase_if(entries, [](auto* node) { return node->role() == QAccessible::Separator; });
  return entries;
}

std::vector<QAccessibleInterface*> AllEntries(WindowProgram& program) {
  program.Find<MenuBar>("MenuBar")->Update();  // as when a menu opens
  QAccessibleInterface* const bar = AccessibleOf(program.Find<MenuBar>("MenuBar"));
  std::vector<QAccessibleInterface*> all;
  for (std::size_t menu = 0; menu < kMenuTitles.size(); ++menu) {
    const auto entries = EntriesOf(bar, static_cast<Menu>(menu));
    all.insert(all.end(), entries.begin(), entries.end());
  }
  return all;
}

Names NamesWhere(WindowProgram& program, bool (*condition)(QAccessible::State)) {
  Names names;
  for (const QAccessibleInterface* entry : AllEntries(program)) {
    if (condition(entry->state())) {
      names.push_back(NameOf(*entry).section('\t', 0, 0).toStdString());
    }
  }
  return names;
}

Names DisabledEntries(WindowProgram& program) {
  return NamesWhere(program, [](QAccessible::State state) { return state.disabled != 0; });
}

TEST(MenusForScreenReaders, BarHoldsFourMenus) {
  WindowProgram program;
  QAccessibleInterface* const bar = AccessibleOf(program.Find<MenuBar>("MenuBar"));
  EXPECT_EQ(bar->role(), QAccessible::MenuBar);
  Names titles;
  for (int i = 0; i < bar->childCount(); ++i) {
    EXPECT_EQ(bar->child(i)->role(), QAccessible::MenuItem);
    EXPECT_FALSE(bar->child(i)->state().disabled);
    titles.push_back(NameOf(*bar->child(i)).toStdString());
  }
  EXPECT_THAT(titles, ElementsAre("Puzzle", "Game", "View", "Help"));
}

// A key that belongs to a control is told with the name, any other as the entry's own.
TEST(MenusForScreenReaders, EveryEntryHasItsNameRoleAndKeys) {
  WindowProgram program;
  const auto entries = AllEntries(program);
  ASSERT_EQ(entries.size(), kEntryTable.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const EntryTraits& traits = kEntryTable[i];
    QString name = QString::fromUtf8(traits.text).remove('&');
    const QString keys = QString(traits.keys).section("; ", 0, 0);
    if (traits.owner == KeyOwner::kControl) name += '\t' + keys;
    EXPECT_EQ(NameOf(*entries[i]).toStdString(), name.toStdString());
    EXPECT_EQ(entries[i]->role(), QAccessible::MenuItem) << traits.text;
    if (traits.owner == KeyOwner::kEntry && !keys.isEmpty()) {
      EXPECT_EQ(entries[i]->text(QAccessible::Accelerator), keys) << traits.text;
    }
  }
}

TEST(MenusForScreenReaders, SwitchesTellWhetherTheyAreOn) {
  WindowProgram program;
  const auto checkable = [](QAccessible::State state) { return state.checkable != 0; };
  const auto checked = [](QAccessible::State state) { return state.checked != 0; };
  EXPECT_THAT(NamesWhere(program, checkable),
              ElementsAre("Same Digits", "Digit Bar", "Softer Colours", "Sounds", "Full Screen"));
  EXPECT_THAT(NamesWhere(program, checked), ElementsAre("Sounds"));
  for (const Entry entry : {Entry::kSameDigits, Entry::kSounds}) {
    program.Find<MenuBar>("MenuBar")->Of(entry)->trigger();
  }
  EXPECT_THAT(NamesWhere(program, checked), ElementsAre("Same Digits"));
}

TEST(MenusForScreenReaders, EntriesAreDisabledExactlyWhileTheyCannotAct) {
  WindowProgram program({900, 662});
  const Names ofAPuzzle{"Copy", "Copy Link", "Copy Picture", "Export…", "Print…"};
  const Names ofAGame{"Undo", "Redo", "Restart", "Hint", "Explain Way…", "Solution", "Quit"};
  Names before{"Continue Last Game"};
  before.insert(before.end(), ofAPuzzle.begin(), ofAPuzzle.end());
  before.insert(before.end(), ofAGame.begin(), ofAGame.end());
  EXPECT_THAT(DisabledEntries(program), ElementsAreArray(before));
  program.MakePuzzle();
  EXPECT_THAT(DisabledEntries(program), ElementsAre("Continue Last Game", "Undo", "Redo", "Restart",
                                                    "Hint", "Solution", "Quit"));
  program.Click("CommandSolve");
  EXPECT_THAT(DisabledEntries(program), ElementsAre("Continue Last Game", "Undo", "Redo"));
  const int cell = program.FirstEmptyCell();
  program.ClickMark(cell, program.SolutionAt(cell));
  EXPECT_THAT(DisabledEntries(program), ElementsAre("Continue Last Game", "Redo"));
  program.Find<MenuBar>("MenuBar")->Of(Entry::kUndo)->trigger();
  EXPECT_THAT(DisabledEntries(program), ElementsAre("Continue Last Game", "Undo"));
  program.Click("CommandSolution");
  EXPECT_THAT(DisabledEntries(program),
              ElementsAre("Continue Last Game", "Redo", "Hint", "Solution"));
}

Qt::Key LetterOf(const char* text) {
  return QKeySequence::mnemonic(QString::fromUtf8(text))[0].key();
}

TEST(MenusWithoutAMouse, EveryEntryIsReachedByTwoLetters) {
  QWidget window;
  MenuBar menu(&window);
  std::vector<Entry> acted;
  for (const EntryTraits& traits : kEntryTable) {
    menu.Connect(traits.entry, [&acted, entry = traits.entry] { acted.push_back(entry); });
  }
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (const EntryTraits& traits : kEntryTable) {
    QTest::keyClick(&window, LetterOf(kMenuTitles[IndexOf(traits.menu)]), Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr) << traits.text;
    acted.clear();
    QTest::keyClick(QApplication::activePopupWidget(), LetterOf(traits.text));
    EXPECT_THAT(acted, ElementsAre(traits.entry)) << traits.text;
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << traits.text;
  }
}

}  // namespace
}  // namespace tessel
