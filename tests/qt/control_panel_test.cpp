#include "shell/qt/control_panel.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QShortcut>
#include <QTextBrowser>
#include <map>
#include <set>

#include "core/version.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

const std::map<std::string, std::string> kCaptions{
    {"CommandSaw", "Saw"},
    {"CommandGo", "Fill"},
    {"CommandConceal", "Conceal"},
    {"CommandSolve", "Solve"},
    {"CommandExit", "Exit"},
    {"CommandHint", "Hint"},
    {"CommandQuit", "Quit"},
    {"CommandRestart", "Restart"},
    {"CommandSolution", "Solution"},
    {"Rotational", "Saw 180° Rotational"},
    {"MakeRegular", "Make regular Sudoku"},
    {"ConcealRotational", "Conceal 180° Rotational"},
    {"CheckVisualize", "Visualize progress"},
    {"CheckPencilmarks", "Update Pencilmarks"},
};

TEST(ControlPanel, ShowsTheCaptions) {
  WindowProgram program;
  for (const auto& [name, caption] : kCaptions) {
    EXPECT_EQ(program.Find<QAbstractButton>(name.c_str())->text().toStdString(), caption);
  }
  EXPECT_EQ(program.Find<QLabel>("TextHint")->text(), "Press [Hint] if you got stuck");
}

TEST(ControlPanel, SpareControlsAreNotShown) {
  WindowProgram program;
  EXPECT_EQ(program.window.findChild<QWidget*>("Command1"), nullptr);
  EXPECT_EQ(program.window.findChild<QWidget*>("Text1"), nullptr);
}

TEST(ControlPanel, OnlyPencilmarksAreTickedAtTheStart) {
  WindowProgram program;
  for (const QCheckBox* box : program.window.findChildren<QCheckBox*>()) {
    EXPECT_EQ(box->isChecked(), box->objectName() == "CheckPencilmarks");
  }
}

TEST(ControlPanel, VisualizeTellsWhatItCosts) {
  WindowProgram program;
  EXPECT_EQ(program.Box("CheckVisualize")->toolTip(), "Leave this unchecked for faster execution");
}

TEST(ControlPanel, EveryControlHasItsOwnShortcutAndNamesIt) {
  WindowProgram program;
  std::set<QString> keys;
  for (const QShortcut* shortcut : program.window.findChildren<QShortcut*>()) {
    EXPECT_FALSE(shortcut->autoRepeat()) << "a held key must not start a command twice";
    EXPECT_TRUE(keys.insert(shortcut->key().toString(QKeySequence::NativeText)).second);
  }
  for (const char* ofTheMenu : {"Ctrl+Z", "Ctrl+Shift+Z"}) keys.insert(ofTheMenu);
  std::set<QString> named;
  const auto* panel = program.window.findChild<ControlPanel*>();
  for (const QAbstractButton* control : panel->findChildren<QAbstractButton*>()) {
    EXPECT_FALSE(control->text().contains('&'));
    named.insert(control->whatsThis().split('\n').last());
  }
  EXPECT_EQ(named, keys);
}

TEST(ControlPanel, ShortcutsClick) {
  WindowProgram program;
  program.window.activateWindow();
  QTest::keyClick(&program.window, Qt::Key_O, Qt::AltModifier);
  EXPECT_TRUE(program.Display().Checked(CheckBox::Rotational));
  EXPECT_TRUE(program.Box("Rotational")->isChecked());
  QTest::keyClick(&program.window, Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(program.Push("CommandGo")->isEnabled());
  EXPECT_TRUE(program.window.windowTitle().startsWith("Tessel Sudoku - Sawed in "));
}

TEST(ControlPanel, BoxesFollowTheForm) {
  WindowProgram program;
  for (const char* name : {"Rotational", "MakeRegular", "ConcealRotational", "CheckVisualize"}) {
    program.ClickBox(name);
    EXPECT_TRUE(program.Box(name)->isChecked()) << name;
  }
  for (const CheckBox box : {CheckBox::Rotational, CheckBox::MakeRegular,
                             CheckBox::ConcealRotational, CheckBox::CheckVisualize}) {
    EXPECT_TRUE(program.Display().Checked(box));
  }
}

TEST(ControlPanel, NothingJumpsWhenTheSolvingControlsAppear) {
  for (const QSize size : {QSize(480, 542), QSize(900, 662), QSize(640, 1022)}) {
    WindowProgram program(size);
    program.MakePuzzle();
    QList<QWidget*> shown{program.Find<QFrame>("SolveButtons")};
    for (QWidget* widget : program.window.findChildren<QWidget*>()) {
      if (widget->isVisible()) shown << widget;
    }
    const auto places = [&] {
      QList<QRect> found;
      for (const QWidget* widget : shown) {
        found << QRect(widget->mapTo(&program.window, QPoint(0, 0)), widget->size());
      }
      return found;
    };
    const QList<QRect> hidden = places();
    ASSERT_GT(hidden.size(), 11) << "eight generation controls, help, exit, the board";
    program.Click("CommandSolve");
    QCoreApplication::processEvents();
    EXPECT_TRUE(program.Find<QFrame>("SolveButtons")->isVisible());
    EXPECT_EQ(places(), hidden);
    program.Click("CommandHint");
    QCoreApplication::processEvents();
    EXPECT_EQ(places(), hidden) << "nor with a hint";
  }
}

TEST(ControlPanel, ControlsNeverOverlapOrLeaveTheWindow) {
  for (const QSize size :
       {QSize(480, 542), QSize(700, 542), QSize(900, 662), QSize(640, 1022), QSize(1600, 1200)}) {
    WindowProgram program(size);
    program.OpenPuzzle();
    EXPECT_EQ(program.window.size(), size);
    QRegion taken;
    const auto take = [&](const QWidget* widget) {
      const QRect place(widget->mapTo(&program.window, QPoint(0, 0)), widget->size());
      EXPECT_TRUE(program.window.rect().contains(place)) << widget->objectName().toStdString();
      EXPECT_FALSE(taken.intersects(place)) << widget->objectName().toStdString();
      taken += place;
    };
    for (const auto& [name, caption] : kCaptions) {
      const auto* control = program.Find<QAbstractButton>(name.c_str());
      take(control);
      EXPECT_GE(control->height(), control->minimumSizeHint().height());
      EXPECT_GE(control->width(), control->fontMetrics().horizontalAdvance(control->text()));
    }
    take(program.Find<QLabel>("TextHint"));
    take(program.Push("Help"));
    take(program.Board());
  }
}

TEST(ControlPanel, BoardGrowsWithTheWindow) {
  double last = 0;
  for (const QSize size :
       {QSize(480, 542), QSize(700, 582), QSize(900, 662), QSize(1300, 1022), QSize(1600, 1200)}) {
    WindowProgram program(size);
    const QRectF cell = program.Board()->CellRect(0);
    EXPECT_EQ(cell.width(), cell.height());
    EXPECT_GT(cell.width(), last);
    last = cell.width();
  }
  EXPECT_GT(last, 110.0);
}

TEST(ControlPanel, MarksCanBeReadInTheSmallestWindow) {
  WindowProgram program(QSize(480, 542));
  EXPECT_GE(program.Board()->CellRect(0).width(), 27);
  program.window.resize(100, 100);
  EXPECT_EQ(program.window.size(), QSize(480, 542));
}

TEST(ControlPanel, LongHintIsShownWhole) {
  for (const QSize size : {QSize(480, 542), QSize(900, 662), QSize(640, 1022)}) {
    WindowProgram program(size);
    program.OpenPuzzle();
    const QLabel* hint = program.Find<QLabel>("TextHint");
    const QRect room = hint->contentsRect().adjusted(hint->margin(), hint->margin(),
                                                     -hint->margin(), -hint->margin());
    const QString text =
        "The cells in column 8 containing candidate 8 all belong to the same cage, therefore that "
        "candidate can be removed from the other cells of that cage";
    const QRect needed = hint->fontMetrics().boundingRect(room, Qt::TextWordWrap, text);
    EXPECT_LE(needed.height(), room.height());
    EXPECT_LE(needed.width(), room.width());
  }
}

TEST(ControlPanel, LargerDesktopFontIsGivenRoom) {
  const QFont before = QApplication::font();
  WindowProgram program(QSize(900, 662));
  program.OpenPuzzle();
  QFont larger = before;
  larger.setPointSizeF(before.pointSizeF() * 1.3);
  QApplication::setFont(larger);
  for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
  for (const auto& [name, caption] : kCaptions) {
    const auto* control = program.Find<QAbstractButton>(name.c_str());
    EXPECT_GE(control->width(), control->fontMetrics().horizontalAdvance(control->text())) << name;
    EXPECT_GE(control->height(), control->minimumSizeHint().height()) << name;
  }
  QApplication::setFont(before);
}

TEST(ControlPanel, NoticeStandsAtTheFootWithoutAJump) {
  WindowProgram program;
  const QLabel* notice = program.Find<QLabel>("Notice");
  EXPECT_EQ(notice->text(), "");
  const QRect board = program.Board()->geometry();
  std::filesystem::create_directory(program.folder.PuzzleFile());  // no file can be written there
  program.MakePuzzle();
  QCoreApplication::processEvents();
  EXPECT_FALSE(program.Display().Notice().empty());
  EXPECT_EQ(notice->text().toStdString(), program.Display().Notice());
  EXPECT_EQ(program.Board()->geometry(), board);
  EXPECT_TRUE(notice->isVisible());
}

TEST(ControlPanel, TabVisitsTheControlsInTheOrderOfTheWork) {
  WindowProgram program;
  program.OpenPuzzle();
  program.window.activateWindow();
  program.Push("CommandSaw")->setFocus();
  const QStringList order{
      "CommandSaw",       "Rotational",        "MakeRegular",     "CommandGo",   "CheckVisualize",
      "CommandConceal",   "ConcealRotational", "CommandSolve",    "Board",       "CommandHint",
      "CheckPencilmarks", "CommandRestart",    "CommandSolution", "CommandQuit", "Help",
      "CommandExit",      "CommandSaw"};
  for (const QString& name : order) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
}

TEST(ControlPanel, FocusIsAlwaysVisible) {
  WindowProgram program;
  program.OpenPuzzle();
  program.window.activateWindow();
  const QList<QWidget*> focusable{program.Push("CommandSaw"), program.Box("Rotational"),
                                  program.Board(), program.Push("CommandHint"),
                                  program.Push("Help")};
  for (QWidget* widget : focusable) {
    widget->setFocus();
    ASSERT_TRUE(widget->hasFocus());
    const QImage with = widget->grab().toImage();
    widget->clearFocus();
    EXPECT_NE(widget->grab().toImage(), with) << widget->objectName().toStdString();
  }
}

TEST(ControlPanel, HelpIsOnePageInsideTheProgram) {
  WindowProgram program;
  program.window.activateWindow();
  QTest::keyClick(&program.window, Qt::Key_F1);
  const auto* help = program.window.findChild<QDialog*>("HelpDialog");
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  EXPECT_FALSE(help->isModal()) << "a running command must go on";
  const QString page = help->findChild<QTextBrowser*>("HelpPage")->toPlainText();
  for (const char* topic :
       {"Saw", "Fill", "Conceal", "Solve", "Stop", "Delete", "Insert", "middle click",
        "right or wrong", "Only Restart", "not give them back", "Update Pencilmarks"}) {
    EXPECT_TRUE(page.contains(topic)) << topic;
  }
  EXPECT_TRUE(page.contains(QString("Version ") + Version()));
}

}  // namespace
}  // namespace tessel
