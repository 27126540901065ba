// The stages of making a puzzle, seen and driven through the real widgets.
#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

#include "tests/qt/window_program.h"

namespace tessel {
namespace {

// The generation buttons: Saw, Fill, Conceal, Solve, Exit.
std::string Enabled(WindowProgram& program) {
  std::string states;
  for (const char* name :
       {"CommandSaw", "CommandGo", "CommandConceal", "CommandSolve", "CommandExit"}) {
    states += program.Push(name)->isEnabled() ? '1' : '0';
  }
  return states;
}

TEST(Stage, TableHoldsFromStartToPuzzle) {
  WindowProgram program;
  EXPECT_EQ(Enabled(program), "10001");
  program.Click("CommandSaw");
  EXPECT_EQ(Enabled(program), "11001");
  program.Click("CommandGo");
  EXPECT_EQ(Enabled(program), "11101");
  program.Click("CommandConceal");
  EXPECT_EQ(Enabled(program), "11111");
  program.Click("CommandSaw");
  EXPECT_EQ(Enabled(program), "11001");
}

TEST(Stage, CaptionTellsTheTimeOfEachCommand) {
  WindowProgram program;
  EXPECT_EQ(program.window.windowTitle(), "Tessel Sudoku");
  program.Click("CommandSaw");
  EXPECT_EQ(program.window.windowTitle(), "Tessel Sudoku - Sawed in 1.23 ms");
  program.Click("CommandGo");
  EXPECT_EQ(program.window.windowTitle(), "Tessel Sudoku - Filled in 1.23 ms");
  program.Click("CommandConceal");
  EXPECT_EQ(program.window.windowTitle(), "Tessel Sudoku - Concealed in 1.23 ms");
  program.Click("CommandSolve");
  EXPECT_EQ(program.window.windowTitle(), "Tessel Sudoku");
}

TEST(Stage, DisabledButtonDoesNothing) {
  WindowProgram program;
  program.Click("CommandGo");
  program.Click("CommandConceal");
  program.Click("CommandSolve");
  EXPECT_EQ(Enabled(program), "10001");
  EXPECT_FALSE(program.Find<QFrame>("SolveButtons")->isVisible());
}

// Acts once, in the middle of the command, when the window has delivered so many events.
template <typename Action>
void InTheMiddle(WindowProgram& program, const Action& action) {
  QTimer::singleShot(0, &program.window, [&program, action] {
    ASSERT_FALSE(program.Display().SolveButtonsEnabled()) << "no command is at work";
    action();
  });
}

TEST(Stage, StopEndsAVisualisedFill) {
  WindowProgram program;
  program.Click("CommandSaw");
  program.ClickBox("CheckVisualize");
  bool asked = false;
  InTheMiddle(program, [&] {
    asked = true;
    EXPECT_EQ(program.Push("CommandGo")->text(), "Stop");
    EXPECT_EQ(Enabled(program), "01000");
    program.Click("CommandGo");
  });
  program.Click("CommandGo");
  EXPECT_TRUE(asked);
  EXPECT_EQ(program.Push("CommandGo")->text(), "Fill");
  EXPECT_EQ(Enabled(program), "11001");
}

TEST(Stage, StopShortcutWorksToo) {
  WindowProgram program;
  program.window.activateWindow();
  program.Click("CommandSaw");
  program.ClickBox("CheckVisualize");
  InTheMiddle(program, [&] { QTest::keyClick(&program.window, Qt::Key_F, Qt::AltModifier); });
  program.Click("CommandGo");
  EXPECT_EQ(Enabled(program), "11001");
}

TEST(Stage, RunningCommandIsMarked) {
  WindowProgram program;
  program.ClickBox("CheckVisualize");
  const auto colour = [&program] {
    return program.Push("CommandSaw")->palette().color(QPalette::Disabled, QPalette::Button);
  };
  const QColor idle = colour();
  QColor running = idle;
  InTheMiddle(program, [&] { running = colour(); });
  program.Click("CommandSaw");
  EXPECT_NE(running, idle) << "the colour of the next step";
  EXPECT_NE(running, colour());
}

TEST(Stage, WindowStaysOpenWhileACommandRuns) {
  WindowProgram program;
  program.Click("CommandSaw");
  program.ClickBox("CheckVisualize");
  bool closed = true;
  InTheMiddle(program, [&] {
    closed = program.window.close();  // a question would hang here
    program.Click("CommandGo");
  });
  program.Click("CommandGo");
  EXPECT_FALSE(closed);
  EXPECT_TRUE(program.window.isVisible());
}

TEST(Stage, SolvingControlsAnswerNothingWhileACommandRuns) {
  WindowProgram program;
  program.OpenPuzzle();
  program.ClickBox("CheckVisualize");
  const PuzzleRecord before = program.State().PlayBoard;
  const int empty = program.FirstEmptyCell();
  InTheMiddle(program, [&] {
    EXPECT_FALSE(program.Find<QFrame>("SolveButtons")->isEnabled());
    EXPECT_FALSE(program.Push("CommandHint")->isEnabled());
    program.Click("CommandSolution");
    program.ClickBox("CheckPencilmarks");
    program.ClickMark(empty, program.SolutionAt(empty));
    program.Click("CommandGo");
  });
  program.Click("CommandGo");
  EXPECT_EQ(program.State().PlayBoard, before);
  EXPECT_TRUE(program.Display().Checked(CheckBox::CheckPencilmarks));
  EXPECT_TRUE(program.Find<QFrame>("SolveButtons")->isEnabled());
}

TEST(Stage, VisualisedCommandsAreSeenGrowing) {
  WindowProgram program;
  program.ClickBox("CheckVisualize");
  int paints = 0;
  class Counter final : public QObject {
   public:
    explicit Counter(int& count) : count_(count) {}
    bool eventFilter(QObject*, QEvent* event) override {
      count_ += event->type() == QEvent::Paint;
      return false;
    }

   private:
    int& count_;
  } counter(paints);
  program.Board()->installEventFilter(&counter);
  program.Click("CommandSaw");
  EXPECT_GE(paints, 72) << "a picture for every claimed cell but those of the last step";
  paints = 0;
  program.Click("CommandGo");
  EXPECT_GE(paints, 72) << "a picture for every placement";
}

TEST(Stage, FocusReturnsToTheButtonThatWasPressed) {
  WindowProgram program;
  program.window.activateWindow();
  program.Push("CommandSaw")->setFocus();
  program.Key(Qt::Key_Space);
  EXPECT_TRUE(program.Push("CommandGo")->isEnabled());
  EXPECT_TRUE(program.Push("CommandSaw")->hasFocus());
}

TEST(Stage, EnterPressesTheFocusedButtonOnce) {
  WindowProgram program;
  program.window.activateWindow();
  program.Push("CommandSaw")->setFocus();
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QCoreApplication::sendEvent(program.Push("CommandSaw"), &held);
  EXPECT_EQ(Enabled(program), "10001");
  program.Key(Qt::Key_Return);
  EXPECT_EQ(Enabled(program), "11001");
}

// Waits for the next question, notes how it looks, and answers it.
struct Answer {
  explicit Answer(QMessageBox::StandardButton button) {
    QObject::connect(&timer, &QTimer::timeout, [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      timer.stop();
      title = box->windowTitle();
      text = box->text();
      EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
      QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
    timer.start(0);
  }
  QTimer timer;
  QString title;
  QString text;
};

TEST(Stage, ExitAsksAndStays) {
  WindowProgram program;
  const Answer answer(QMessageBox::No);
  program.Click("CommandExit");
  EXPECT_EQ(answer.title, "Tessel Sudoku");
  EXPECT_EQ(answer.text, "Do you really want to quit this program?");
  EXPECT_TRUE(program.window.isVisible());
}

TEST(Stage, ExitAsksAndEndsTheProgram) {
  WindowProgram program;
  const Answer answer(QMessageBox::Yes);
  QTimer::singleShot(0, [&program] { program.Click("CommandExit"); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(answer.text, "Do you really want to quit this program?");
}

TEST(Stage, ClosingAsks) {
  WindowProgram program;
  {
    const Answer answer(QMessageBox::No);
    EXPECT_FALSE(program.window.close());
    EXPECT_EQ(answer.text, "Do you really want to quit this program?");
    EXPECT_EQ(answer.title, "Tessel Sudoku");
  }
  const Answer answer(QMessageBox::Yes);
  EXPECT_TRUE(program.window.close());
}

TEST(Stage, QuitAsksUnderTheSolversTitle) {
  WindowProgram program;
  program.OpenPuzzle();
  {
    const Answer answer(QMessageBox::No);
    program.Click("CommandQuit");
    EXPECT_EQ(answer.title, "Tessel Sudoku - Solver");
    EXPECT_EQ(answer.text, "Do you really want to quit solving ?");
    EXPECT_TRUE(program.Find<QFrame>("SolveButtons")->isVisible());
  }
  const Answer answer(QMessageBox::Yes);
  program.Click("CommandQuit");
  EXPECT_FALSE(program.Find<QFrame>("SolveButtons")->isVisible());
}

TEST(Stage, WindowDoesNotCloseBehindAQuestion) {
  WindowProgram program;
  bool closed = true;
  QTimer::singleShot(0, [&] {
    QWidget* const box = QApplication::activeModalWidget();
    QCloseEvent close;
    QCoreApplication::sendEvent(&program.window, &close);
    closed = close.isAccepted();
    box->close();
  });
  program.Click("CommandExit");
  EXPECT_FALSE(closed);
}

}  // namespace
}  // namespace tessel
