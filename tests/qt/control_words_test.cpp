// What the controls tell about themselves.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>

#include "tests/qt/window_program.h"

namespace tessel {
namespace {

TEST(ControlWords, DisabledButtonsTellWhatTheyWaitFor) {
  WindowProgram program;
  const auto waitsFor = [&](const char* button) {
    return program.Push(button)->toolTip().section('\n', 1).toStdString();
  };
  EXPECT_EQ(waitsFor("CommandSaw"), "");
  EXPECT_EQ(waitsFor("CommandGo"), "Saw first");
  EXPECT_EQ(waitsFor("CommandConceal"), "Fill first");
  EXPECT_EQ(waitsFor("CommandSolve"), "Conceal first");
  program.MakePuzzle();
  EXPECT_EQ(waitsFor("CommandSolve"), "");
  program.Click("CommandSolve");
  program.Click("CommandSolution");
  EXPECT_EQ(waitsFor("CommandHint"), "The board is full: Restart first");
  program.ClickBox("CheckVisualize");
  QTimer::singleShot(0, &program.window, [&] {
    EXPECT_EQ(waitsFor("CommandSaw"), "Press Stop first");
    program.Click("CommandGo");
  });
  program.Click("CommandGo");
}

TEST(ControlWords, BoxesTellWhichOfThemWins) {
  WindowProgram program;
  EXPECT_TRUE(program.Box("Rotational")->toolTip().contains("Make regular Sudoku wins over this"));
  EXPECT_TRUE(program.Box("MakeRegular")->toolTip().contains("wins over Saw 180° Rotational"));
}

// The button that is the next step of the work.
std::string Accented(WindowProgram& program) {
  std::string found;
  for (const char* name :
       {"CommandSaw", "CommandGo", "CommandConceal", "CommandSolve", "CommandExit"}) {
    const auto ground = [](const QPalette& colours) { return colours.color(QPalette::Button); };
    if (ground(program.Push(name)->palette()) != ground(program.window.palette())) found += name;
  }
  return found;
}

TEST(ControlWords, NextStepStandsOut) {
  WindowProgram program;
  for (const char* next : {"CommandSaw", "CommandGo", "CommandConceal", "CommandSolve"}) {
    EXPECT_EQ(Accented(program), next);
    program.Click(next);
  }
  EXPECT_EQ(Accented(program), "") << "while a game is open";
  program.Click("CommandSaw");
  EXPECT_EQ(Accented(program), "");
}

TEST(ControlWords, HintCanBeSelectedAndCopied) {
  WindowProgram program;
  program.OpenPuzzle();
  program.window.activateWindow();
  auto* const hint = program.Find<QLabel>("TextHint");
  QTest::mouseDClick(hint, Qt::LeftButton, {}, QPoint(12, 12));
  EXPECT_EQ(hint->selectedText().trimmed(), "Press");
  hint->setFocus();
  QKeyEvent copy(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
  QCoreApplication::sendEvent(hint, &copy);
  EXPECT_TRUE(copy.isAccepted()) << "the window's own Ctrl+C must not get it";
  QTest::keyClick(hint, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().trimmed(), "Press");
}

}  // namespace
}  // namespace tessel
