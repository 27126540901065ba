// How the window shares its room.
#include <gtest/gtest.h>

#include <QLabel>
#include <QLayout>

#include "tests/qt/window_program.h"

namespace tessel {
namespace {

QRect PlaceOf(WindowProgram& program, const QWidget& widget) {
  return {widget.mapTo(&program.window, QPoint(0, 0)), widget.size()};
}

ControlPanel& PanelOf(WindowProgram& program) {
  return *program.window.findChild<ControlPanel*>();
}

TEST(WindowLayout, ControlsTakeAtMostTwoFifthsOfTheSmallestWindow) {
  WindowProgram program(QSize(480, 542));
  EXPECT_GT(PanelOf(program).y(), program.Board()->y()) << "below the board";
  EXPECT_LE(PanelOf(program).height(), 542 * 2 / 5);
}

TEST(WindowLayout, LowScreenGetsATighterPanel) {
  for (const QSize size : {QSize(903, 472), QSize(952, 500)}) {
    WindowProgram program;
    program.window.setMinimumSize(1, 1);
    program.window.resize(size);
    program.OpenPuzzle();
    QCoreApplication::processEvents();
    const QRect panel = PlaceOf(program, PanelOf(program));
    EXPECT_TRUE(program.window.rect().contains(panel));
    EXPECT_GE(panel.height(), PanelOf(program).layout()->minimumSize().height());
    EXPECT_GE(panel.left(), PlaceOf(program, *program.Board()).right());
    EXPECT_GE(program.Board()->CellRect(0).width(), 33);
  }
}

TEST(WindowLayout, WideWindowKeepsBoardAndPanelTogetherInTheMiddle) {
  for (const QSize size : {QSize(1900, 1000), QSize(1300, 700), QSize(3000, 1500)}) {
    WindowProgram program(size);
    program.OpenPuzzle();
    QCoreApplication::processEvents();
    const QRect board = PlaceOf(program, *program.Board());
    const QRect panel = PlaceOf(program, PanelOf(program));
    EXPECT_NEAR(board.width(), board.height(), 2);
    EXPECT_LE(panel.left() - board.right(), 10);
    EXPECT_NEAR(board.left(), size.width() - panel.right(), 3);
  }
}

TEST(WindowLayout, HintGrowsWithTheBoard) {
  const auto points = [](QSize size) {
    WindowProgram program(size);
    return program.Find<QLabel>("TextHint")->font().pointSizeF();
  };
  const double usual = points(QSize(900, 662));
  EXPECT_GT(points(QSize(1500, 900)), usual + 1);
  EXPECT_EQ(points(QSize(3000, 2000)), 18.0);
}

TEST(WindowLayout, ShrinkingLeavesNothingBehind) {
  WindowProgram grown(QSize(3000, 2000));
  grown.window.resize(900, 662);
  WindowProgram fresh(QSize(900, 662));
  for (WindowProgram* program : {&grown, &fresh}) {
    program->OpenPuzzle();
    for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
  }
  EXPECT_EQ(PanelOf(grown).geometry(), PanelOf(fresh).geometry());
  EXPECT_EQ(grown.Find<QLabel>("TextHint")->geometry(), fresh.Find<QLabel>("TextHint")->geometry());
}

// Of a program that has gone through these sizes with an open game, with the bar of digits or not.
std::vector<QRect> PlacesAt(std::initializer_list<QSize> sizes, bool withBar) {
  WindowProgram program({900, 662});
  program.OpenPuzzle();
  if (withBar) program.Find<MenuBar>("MenuBar")->Of(Entry::kDigitBar)->trigger();
  for (const QSize size : sizes) {
    program.window.resize(size);
    QCoreApplication::processEvents();
  }
  return {PlaceOf(program, *program.Board()), PlaceOf(program, PanelOf(program)),
          PlaceOf(program, *program.Find<QLabel>("TextHint"))};
}

TEST(WindowLayout, DependsOnTheSizeAndNotOnTheOnesBefore) {
  const QSize usual(900, 662);
  const QSize screens[] = {{1600, 1200}, {500, 900}};
  for (const bool withBar : {false, true}) {
    const auto fresh = PlacesAt({usual}, withBar);
    for (const QSize screen : screens) {
      const auto full = PlacesAt({screen}, withBar);
      EXPECT_NE(full, fresh);
      EXPECT_EQ(PlacesAt({screen, usual}, withBar), fresh) << screen.width() << withBar;
      EXPECT_EQ(PlacesAt({screen, usual, screen}, withBar), full) << screen.width() << withBar;
    }
    for (std::size_t i = 0; i < fresh.size(); ++i) {
      EXPECT_EQ(PlacesAt({screens[0]}, true)[i], PlacesAt({screens[0]}, false)[i]) << i;
    }
  }
}

}  // namespace
}  // namespace tessel
