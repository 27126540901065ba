// What the window answers to a player who does not hear it.
#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>

#include "shell/qt/screen_fit.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

std::string TextOf(WindowProgram& program, const char* label) {
  return program.Find<QLabel>(label)->text().toStdString();
}

void FillBoard(WindowProgram& program) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (program.Display().Cell(cell).text == 0) program.ClickMark(cell, program.SolutionAt(cell));
  }
}

TEST(FootLine, TellsTheSaveTheCountsAndSoonTheGrade) {
  WindowProgram program(QSize(1200, 700));
  program.MakePuzzle();
  EXPECT_TRUE(TextOf(program, "Notice").starts_with("Saved as puzzle 1 in "));
  EXPECT_TRUE(TextOf(program, "Standing").find(" cells left") != std::string::npos);
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return TextOf(program, "Standing").find("; Tessel grade: ") != std::string::npos; },
      60'000));
}

TEST(FootLine, TellsThatTheBoardIsFull) {
  WindowProgram program;
  program.OpenPuzzle();
  EXPECT_EQ(TextOf(program, "Notice"), "");
  FillBoard(program);
  EXPECT_EQ(TextOf(program, "Notice"), "The board is full");
  program.Click("CommandRestart");
  EXPECT_EQ(TextOf(program, "Notice"), "");
}

TEST(FootLine, KeepsItsPlaceWhateverItSays) {
  for (const QSize size : {QSize(480, 542), QSize(900, 662)}) {
    WindowProgram program(size);
    const QRect board = program.Board()->geometry();
    program.OpenPuzzle();
    FillBoard(program);
    QCoreApplication::processEvents();
    EXPECT_EQ(program.Board()->geometry(), board);
    EXPECT_TRUE(program.Find<QLabel>("Standing")->isVisible());
  }
}

TEST(FootLine, LongPathLosesItsMiddle) {
  WindowProgram program(QSize(480, 542));
  program.MakePuzzle();
  const auto* const notice = program.Find<QLabel>("Notice");
  EXPECT_TRUE(notice->text().startsWith("Saved as"));
  EXPECT_LE(notice->fontMetrics().horizontalAdvance(notice->text()), notice->width());
  EXPECT_EQ(notice->toolTip().toStdString(), program.Display().News());
}

TEST(Feedback, AFinishedGameHasAFrame) {
  WindowProgram program;
  program.OpenPuzzle();
  const auto corner = [&] {
    const BoardGeometry geometry = program.Board()->Geometry();
    return program.Board()->grab().toImage().pixelColor(geometry.PanelRect().bottomRight());
  };
  const QColor open = corner();
  FillBoard(program);
  EXPECT_EQ(corner(), program.Board()->palette().color(QPalette::Highlight));
  program.Click("CommandRestart");
  EXPECT_EQ(corner(), open);
  program.Click("CommandSolution");
  EXPECT_NE(corner(), open);
  program.Click("CommandSaw");
  EXPECT_EQ(corner(), open) << "the full board is not in sight any more";
}

TEST(Feedback, ARefusedDigitMakesTheFocusRingFlash) {
  WindowProgram program;
  program.OpenPuzzle();
  program.window.activateWindow();
  program.Board()->setFocus();
  const int cell = program.FirstEmptyCell();
  program.Board()->FocusCell(cell);
  int refused = 1;
  while (program.Display().Mark(cell, refused).visible) ++refused;
  const auto look = [&] { return program.Board()->grab().toImage(); };
  const QImage calm = look();
  program.Key(Qt::Key_0 + refused);
  EXPECT_NE(look(), calm);
  EXPECT_TRUE(QTest::qWaitFor([&] { return look() == calm; }, 60'000));
  EXPECT_TRUE(QTest::qWaitFor([&] { return look() != calm; }, 60'000)) << "the second flash";
  EXPECT_TRUE(QTest::qWaitFor([&] { return look() == calm; }, 60'000));
  program.Key(Qt::Key_0 + refused, Qt::ControlModifier);
  EXPECT_TRUE(program.Display().Mark(cell, refused).visible) << "which is no digit and not refused";
}

TEST(Feedback, NothingFlashesWhereNothingIsPlayed) {
  WindowProgram program;
  program.window.activateWindow();
  program.Board()->setFocus();
  const QImage calm = program.Board()->grab().toImage();
  program.Key(Qt::Key_5);
  EXPECT_EQ(program.Board()->grab().toImage(), calm);
}

TEST(Feedback, QuitHandsTheFocusToTheBoard) {
  WindowProgram program;
  program.OpenPuzzle();
  program.window.activateWindow();
  program.Push("CommandQuit")->setFocus();
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != nullptr) QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
  });
  answer.start(0);
  program.Click("CommandQuit");
  answer.stop();
  program.window.activateWindow();
  QCoreApplication::processEvents();
  EXPECT_FALSE(program.Display().SolveButtonsVisible());
  EXPECT_EQ(program.window.focusWidget(), program.Board());
}

TEST(ScreenFit, WindowsGetNoMoreThanTheScreenHas) {
  EXPECT_EQ(FitInto(QSize(900, 640), QSize(1366, 768)), QSize(900, 640));
  EXPECT_EQ(FitInto(QSize(900, 640), QSize(911, 512)), QSize(900, 472));
  EXPECT_EQ(FitInto(QSize(900, 640), QSize(683, 384)), QSize(675, 344));
}

}  // namespace
}  // namespace tessel
