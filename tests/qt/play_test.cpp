// Playing in the real window.
#include <gtest/gtest.h>

#include <QKeyEvent>

#include "tests/qt/window_program.h"

namespace tessel {
namespace {

// What a game leaves behind, wherever it was played.
void ExpectSameGame(WindowProgram& one, WindowProgram& other) {
  EXPECT_EQ(one.State().PlayBoard, other.State().PlayBoard);
  EXPECT_EQ(one.State().Candidates, other.State().Candidates);
  EXPECT_EQ(one.player.played, other.player.played);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(one.Display().Cell(cell).text, other.Display().Cell(cell).text);
    for (int digit = 1; digit <= kSide; ++digit) {
      EXPECT_EQ(one.Display().Mark(cell, digit).visible, other.Display().Mark(cell, digit).visible);
    }
  }
}

// Walks the keyboard focus to the cell as a player does.
void GoTo(WindowProgram& program, int cell) {
  while (ColumnOf(program.Board()->FocusedCell()) < ColumnOf(cell)) program.Key(Qt::Key_Right);
  while (ColumnOf(program.Board()->FocusedCell()) > ColumnOf(cell)) program.Key(Qt::Key_Left);
  while (RowOf(program.Board()->FocusedCell()) < RowOf(cell)) program.Key(Qt::Key_Down);
  while (RowOf(program.Board()->FocusedCell()) > RowOf(cell)) program.Key(Qt::Key_Up);
}

TEST(Play, KeyboardActsLikeTheMouse) {
  WindowProgram mouse;
  WindowProgram keyboard;
  for (WindowProgram* program : {&mouse, &keyboard}) {
    program->OpenPuzzle();
    program->window.activateWindow();
    program->Board()->setFocus();
  }
  const int cell = mouse.FirstEmptyCell(20);
  const int digit = mouse.SolutionAt(cell);
  GoTo(keyboard, cell);

  mouse.ClickMark(cell, digit);
  keyboard.Key(Qt::Key_0 + digit);
  EXPECT_EQ(keyboard.Display().Cell(cell).text, digit);
  ExpectSameGame(mouse, keyboard);

  mouse.ClickMark(cell, 1, Qt::RightButton);
  keyboard.Key(Qt::Key_Delete);
  EXPECT_EQ(keyboard.Display().Cell(cell).text, 0);
  ExpectSameGame(mouse, keyboard);

  mouse.ClickMark(cell, digit, Qt::RightButton);
  keyboard.Key(Qt::Key_0 + digit, Qt::ControlModifier);
  EXPECT_FALSE(keyboard.Display().Mark(cell, digit).visible);
  ExpectSameGame(mouse, keyboard);

  mouse.ClickMark(cell, 3, Qt::MiddleButton);
  keyboard.Key(Qt::Key_Insert);
  EXPECT_TRUE(keyboard.Display().Mark(cell, digit).visible);
  ExpectSameGame(mouse, keyboard);
}

TEST(Play, WholeGameByMouseAndByKeyboardEndsInTheSameApplause) {
  WindowProgram mouse;
  WindowProgram keyboard;
  mouse.OpenPuzzle();
  keyboard.window.activateWindow();
  for (const Qt::Key key : {Qt::Key_S, Qt::Key_F, Qt::Key_C, Qt::Key_L}) {
    QTest::keyClick(&keyboard.window, key, Qt::AltModifier);
  }
  EXPECT_TRUE(keyboard.Board()->hasFocus()) << "Solve hands the keyboard to the board";
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (mouse.Display().Cell(cell).text != 0) continue;
    const int digit = mouse.SolutionAt(cell);
    mouse.ClickMark(cell, digit);
    GoTo(keyboard, cell);
    keyboard.Key(Qt::Key_0 + digit);
  }
  EXPECT_EQ(mouse.player.played.back(), 0) << "applause";
  EXPECT_FALSE(mouse.Push("CommandSolution")->isEnabled());
  ExpectSameGame(mouse, keyboard);
}

TEST(Play, DeleteInAnEmptyCellTogglesNoMark) {
  WindowProgram program;
  program.OpenPuzzle();
  program.window.activateWindow();
  program.Board()->setFocus();
  const int cell = program.FirstEmptyCell();
  GoTo(program, cell);
  const MaskBoard before = program.State().Candidates;
  program.Key(Qt::Key_Delete);
  program.Key(Qt::Key_Backspace);
  EXPECT_EQ(program.State().Candidates, before);
}

TEST(Play, UntickedPencilmarksShowAllMarksAndBoxStaysInStep) {
  WindowProgram program;
  program.OpenPuzzle();
  program.ClickBox("CheckPencilmarks");
  EXPECT_FALSE(program.Box("CheckPencilmarks")->isChecked());
  const int cell = program.FirstEmptyCell();
  for (int digit = 1; digit <= kSide; ++digit) {
    EXPECT_TRUE(program.Display().Mark(cell, digit).visible);
  }
  program.ClickBox("CheckPencilmarks");
  EXPECT_TRUE(program.Box("CheckPencilmarks")->isChecked());
}

TEST(Play, HintIsWrittenAndItsLinesTurnRed) {
  WindowProgram program;
  program.OpenPuzzle();
  program.Click("CommandHint");
  EXPECT_EQ(program.Find<QLabel>("TextHint")->text().toStdString(), program.Display().TextHint());
  EXPECT_NE(program.Display().TextHint(), "Press [Hint] if you got stuck");
}

TEST(Play, SolutionDisablesHintAndSolutionUntilRestart) {
  WindowProgram program;
  program.OpenPuzzle();
  program.Click("CommandSolution");
  EXPECT_FALSE(program.Push("CommandHint")->isEnabled());
  EXPECT_FALSE(program.Push("CommandSolution")->isEnabled());
  program.Click("CommandRestart");
  EXPECT_TRUE(program.Push("CommandHint")->isEnabled());
  EXPECT_TRUE(program.Push("CommandSolution")->isEnabled());
}

// A French keyboard gives other signs without Shift and the digits with it.
TEST(Play, DigitRowCountsByItsPlace) {
  WindowProgram program;
  program.OpenPuzzle();
  const int cell = program.FirstEmptyCell();
  program.Board()->FocusCell(cell);
  const int digit = program.SolutionAt(cell);
  const auto press = [&](int key, int place, Qt::KeyboardModifiers modifiers) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, static_cast<quint32>(place), 0, 0);
    QCoreApplication::sendEvent(program.Board(), &event);
  };
  press(Qt::Key_Ampersand, 9 + digit, Qt::ShiftModifier);  // an American sign
  press(Qt::Key_Agrave, 19, Qt::NoModifier);               // the place of 0
  press(Qt::Key_Q, 24, Qt::NoModifier);
  EXPECT_EQ(program.Display().Cell(cell).text, 0);
  press(Qt::Key_Ampersand, 9 + digit, Qt::ControlModifier);
  EXPECT_FALSE(program.Display().Mark(cell, digit).visible);
  press(Qt::Key_Ampersand, 9 + digit, Qt::ControlModifier);
  press(Qt::Key_Ampersand, 9 + digit, Qt::NoModifier);
  EXPECT_EQ(program.Display().Cell(cell).text, digit);
}

}  // namespace
}  // namespace tessel
