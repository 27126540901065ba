// Undo, redo and the last game, in the real window.
#include <gtest/gtest.h>

#include <QMessageBox>
#include <algorithm>

#include "shell/qt/menu_bar.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

QAction* ActionOf(WindowProgram& program, Entry entry) {
  return program.Find<MenuBar>("MenuBar")->Of(entry);
}

// A program in which one right digit was placed.
struct PlayedGame : testing::Test {
  PlayedGame() {
    program.window.activateWindow();
    program.OpenPuzzle();
    cell = program.FirstEmptyCell();
    program.ClickMark(cell, program.SolutionAt(cell));
  }
  int Digit() { return program.Display().Cell(cell).text; }

  WindowProgram program;
  int cell = 0;
};

TEST_F(PlayedGame, KeysUndoAndRedo) {
  const int digit = Digit();
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Digit(), 0);
  program.Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Digit(), digit);
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  program.Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Digit(), digit);
}

TEST_F(PlayedGame, ButtonsDoWhatTheEntriesDoAndShowTheDepth) {
  const int digit = Digit();
  program.Board()->setFocus();
  EXPECT_TRUE(program.Push("Undo")->isEnabled());
  EXPECT_FALSE(program.Push("Redo")->isEnabled());
  program.Click("Undo");
  EXPECT_EQ(Digit(), 0);
  EXPECT_FALSE(program.Push("Undo")->isEnabled());
  EXPECT_TRUE(program.Push("Redo")->isEnabled());
  EXPECT_FALSE(ActionOf(program, Entry::kUndo)->isEnabled());
  EXPECT_TRUE(program.Board()->hasFocus()) << "the mouse leaves it there";
  program.Click("Redo");
  EXPECT_EQ(Digit(), digit);
}

TEST_F(PlayedGame, BoxShowsTheModeOfThePosition) {
  program.ClickBox("CheckPencilmarks");
  ActionOf(program, Entry::kUndo)->trigger();
  EXPECT_TRUE(program.Box("CheckPencilmarks")->isChecked());
}

TEST_F(PlayedGame, StepsAreInTheMenuAloneWhereThePanelLiesBelow) {
  EXPECT_TRUE(program.Push("Undo")->isVisible());
  program.window.resize(480, 542);
  QCoreApplication::processEvents();
  EXPECT_FALSE(program.Push("Undo")->isVisible());
  ActionOf(program, Entry::kUndo)->trigger();
  EXPECT_EQ(Digit(), 0);
}

TEST_F(PlayedGame, LastGameIsContinuedFromTheMenu) {
  const int digit = Digit();
  EXPECT_FALSE(ActionOf(program, Entry::kContinue)->isEnabled());
  QTimer::singleShot(0, &program.window, [this] {
    program.window.findChild<QMessageBox*>()->button(QMessageBox::Yes)->click();
  });
  program.Click("CommandQuit");
  EXPECT_TRUE(ActionOf(program, Entry::kContinue)->isEnabled());
  ActionOf(program, Entry::kContinue)->trigger();
  EXPECT_EQ(Digit(), digit);
  EXPECT_TRUE(program.Find<QFrame>("SolveButtons")->isVisible());
  EXPECT_TRUE(program.Push("Undo")->isEnabled());
}

}  // namespace
}  // namespace tessel
