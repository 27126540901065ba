#include "shell/qt/board_widget.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QTest>
#include <cmath>

#include "tests/fakes/recording_view.h"

namespace tessel {
namespace {

struct Release {
  int cell;
  MouseButton button;
  int digit;

  bool operator==(const Release&) const = default;
};

void PrintTo(const Release& release, std::ostream* out) {
  *out << "cell " << release.cell << " button " << static_cast<int>(release.button) << " digit "
       << release.digit;
}

class BoardWidget : public testing::Test {
 protected:
  BoardWidget() {
    FillTables(state);
    SetLayout(state, Layout::Regular());
    state.Candidates.fill(BitOf(2) | BitOf(7));
    form.ShowSolveButtons(true);
    board.SetSource(form, state);
    board.resize(500, 430);
    board.show();
    board.setFocus();
    QObject::connect(&board, &tessel::BoardWidget::CellReleased,
                     [this](int cell, MouseButton button, double x, double y) {
                       EXPECT_TRUE(x >= 0 && x < kCellUnits && y >= 0 && y < kCellUnits);
                       releases.push_back({cell, button, DigitAt({x, y}).value_or(0)});
                     });
    QCoreApplication::processEvents();
  }

  QPoint Mark(int cell, int digit) {
    const QRectF place = board.CellRect(cell);
    return {qFloor(place.left() + place.width() * ((digit - 1) % 3 * 2 + 1) / 6),
            qFloor(place.top() + place.height() * ((digit - 1) / 3 * 2 + 1) / 6)};
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&board, key, modifiers);
  }
  using Releases = std::vector<Release>;

  RecordingView view;
  Form form{view};
  GameState state;
  tessel::BoardWidget board;
  Releases releases;
};

TEST_F(BoardWidget, EveryMarkOfEveryCellCanBeClickedAtAnySize) {
  for (const QSize size : {QSize(240, 260), QSize(501, 430), QSize(760, 1199)}) {
    board.resize(size);
    for (int cell = 0; cell < kCellCount; ++cell) {
      for (int digit = 1; digit <= kSide; ++digit) {
        releases.clear();
        QTest::mouseClick(&board, Qt::LeftButton, {}, Mark(cell, digit));
        EXPECT_EQ(releases, (Releases{{cell, MouseButton::kLeft, digit}}));
      }
    }
  }
}

TEST_F(BoardWidget, ThreeButtonsCount) {
  for (const Qt::MouseButton button :
       {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton}) {
    QTest::mouseClick(&board, button, {}, Mark(30, 4));
  }
  EXPECT_EQ(releases, (Releases{{30, MouseButton::kLeft, 4},
                                {30, MouseButton::kRight, 4},
                                {30, MouseButton::kMiddle, 4}}));
}

TEST_F(BoardWidget, ModifierKeysLeaveAClickPlain) {
  for (const Qt::KeyboardModifier modifier :
       {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
    releases.clear();
    QTest::mouseClick(&board, Qt::LeftButton, modifier, Mark(7, 9));
    EXPECT_EQ(releases, (Releases{{7, MouseButton::kLeft, 9}}));
  }
}

TEST_F(BoardWidget, DoubleClickIsTwoClicks) {
  QTest::mouseClick(&board, Qt::RightButton, {}, Mark(7, 2));
  QTest::mouseDClick(&board, Qt::RightButton, {}, Mark(7, 2));  // the second press alone
  QTest::mouseRelease(&board, Qt::RightButton, {}, Mark(7, 2));
  const Release once{7, MouseButton::kRight, 2};
  EXPECT_EQ(releases, (Releases{once, once}));
}

TEST_F(BoardWidget, ReleaseInAnotherCellActsThere) {
  QTest::mousePress(&board, Qt::LeftButton, {}, Mark(7, 9));
  EXPECT_EQ(board.FocusedCell(), 7);
  QTest::mouseRelease(&board, Qt::LeftButton, {}, Mark(8, 7));
  EXPECT_EQ(releases, (Releases{{8, MouseButton::kLeft, 7}}));
  EXPECT_EQ(board.FocusedCell(), 8);
}

TEST_F(BoardWidget, ReleaseElsewhereInTheCellChoosesTheDigit) {
  QTest::mousePress(&board, Qt::LeftButton, {}, Mark(7, 9));
  QTest::mouseRelease(&board, Qt::LeftButton, {}, Mark(7, 1));
  EXPECT_EQ(releases, (Releases{{7, MouseButton::kLeft, 1}}));
}

TEST_F(BoardWidget, ReleaseBesideTheBoardTakesThePressBack) {
  const QPoint beside(2, 2);
  QTest::mouseClick(&board, Qt::LeftButton, {}, beside);
  QTest::mousePress(&board, Qt::LeftButton, {}, Mark(0, 1));
  QTest::mouseRelease(&board, Qt::LeftButton, {}, beside);
  QTest::mousePress(&board, Qt::LeftButton, {}, Mark(0, 1));
  QTest::mouseRelease(&board, Qt::LeftButton, {}, QPoint(-30, 4000));
  EXPECT_TRUE(releases.empty());
}

TEST_F(BoardWidget, PressBesideTheBoardCountsWhereItIsLetGo) {
  QTest::mousePress(&board, Qt::RightButton, {}, QPoint(2, 2));
  QTest::mouseRelease(&board, Qt::RightButton, {}, Mark(44, 6));
  EXPECT_EQ(releases, (Releases{{44, MouseButton::kRight, 6}}));
}

TEST_F(BoardWidget, ButtonsArePressedIndependently) {
  QTest::mousePress(&board, Qt::LeftButton, {}, Mark(1, 1));
  QTest::mousePress(&board, Qt::RightButton, {}, Mark(2, 2));
  QTest::mouseRelease(&board, Qt::RightButton, {}, Mark(2, 2));
  QTest::mouseRelease(&board, Qt::LeftButton, {}, Mark(1, 1));
  EXPECT_EQ(releases, (Releases{{2, MouseButton::kRight, 2}, {1, MouseButton::kLeft, 1}}));
}

TEST_F(BoardWidget, DigitKeysClickTheMarksOfTheFocusedCell) {
  board.FocusCell(12);
  for (int digit = 1; digit <= kSide; ++digit) {
    for (const Qt::KeyboardModifier pad : {Qt::NoModifier, Qt::KeypadModifier}) {
      releases.clear();
      Key(static_cast<Qt::Key>(Qt::Key_0 + digit), pad);
      Key(static_cast<Qt::Key>(Qt::Key_0 + digit), pad | Qt::ControlModifier);
      EXPECT_EQ(releases,
                (Releases{{12, MouseButton::kLeft, digit}, {12, MouseButton::kRight, digit}}));
    }
  }
}

TEST_F(BoardWidget, InsertIsTheMiddleClick) {
  board.FocusCell(12);
  Key(Qt::Key_Insert);
  Key(Qt::Key_Insert, Qt::KeypadModifier);  // the pad's 0 without NumLock
  Key(Qt::Key_0, Qt::KeypadModifier);       // and with it
  const Release middle{12, MouseButton::kMiddle, 5};
  EXPECT_EQ(releases, (Releases{middle, middle, middle}));
}

TEST_F(BoardWidget, DeleteTakesADigitOutButTogglesNoMark) {
  board.FocusCell(12);
  const auto press = [this] {
    Key(Qt::Key_Delete);
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Delete, Qt::KeypadModifier);  // the pad's point without NumLock
    Key(Qt::Key_Period, Qt::KeypadModifier);  // and with it
    Key(Qt::Key_Comma, Qt::KeypadModifier);
  };
  press();
  EXPECT_TRUE(releases.empty()) << "the cell is empty";
  form.SetCellText(12, 8);
  press();
  EXPECT_EQ(releases, Releases(5, Release{12, MouseButton::kRight, 8}));
}

TEST_F(BoardWidget, OtherKeysAreLeftToTheWindow) {
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_0, Qt::Key_Period, Qt::Key_Space, Qt::Key_Return}) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&board, &event);
    EXPECT_FALSE(event.isAccepted()) << key;
  }
  QKeyEvent event(QEvent::KeyPress, Qt::Key_5, Qt::AltModifier);
  QCoreApplication::sendEvent(&board, &event);
  EXPECT_FALSE(event.isAccepted());
  EXPECT_TRUE(releases.empty());
}

TEST_F(BoardWidget, HeldKeyActsOnceButMovesOn) {
  board.FocusCell(0);
  QKeyEvent digit(QEvent::KeyPress, Qt::Key_5, Qt::NoModifier, "5", true);
  QCoreApplication::sendEvent(&board, &digit);
  EXPECT_TRUE(releases.empty());
  QKeyEvent arrow(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, "", true);
  QCoreApplication::sendEvent(&board, &arrow);
  EXPECT_EQ(board.FocusedCell(), 1);
}

TEST_F(BoardWidget, ArrowsMoveTheFocusAndStopAtTheEdge) {
  board.FocusCell(0);
  const auto moves = [this](std::initializer_list<std::pair<Qt::Key, int>> steps) {
    for (const auto& [key, cell] : steps) {
      Key(key);
      EXPECT_EQ(board.FocusedCell(), cell);
    }
  };
  moves({{Qt::Key_Left, 0}, {Qt::Key_Up, 0}, {Qt::Key_Right, 1}, {Qt::Key_Down, 10}});
  moves({{Qt::Key_End, 17}, {Qt::Key_Right, 17}, {Qt::Key_PageDown, 80}, {Qt::Key_Down, 80}});
  moves({{Qt::Key_Home, 72}, {Qt::Key_PageUp, 0}, {Qt::Key_Down, 9}, {Qt::Key_Left, 9}});
  Key(Qt::Key_Right, Qt::KeypadModifier);
  EXPECT_EQ(board.FocusedCell(), 10);
}

TEST_F(BoardWidget, ClickMovesTheFocus) {
  QTest::mouseClick(&board, Qt::LeftButton, {}, Mark(62, 5));
  EXPECT_EQ(board.FocusedCell(), 62);
}

TEST_F(BoardWidget, FocusRingShowsOnlyWithTheKeyboardFocus) {
  QWidget window;
  tessel::BoardWidget inside(&window);
  QWidget other(&window);
  other.setFocusPolicy(Qt::StrongFocus);
  inside.SetSource(form, state);
  window.resize(400, 400);
  inside.resize(400, 400);
  window.show();
  window.activateWindow();
  QCoreApplication::processEvents();
  inside.setFocus();
  ASSERT_TRUE(inside.hasFocus());
  const QImage with = inside.grab().toImage();
  other.setFocus();
  const QImage without = inside.grab().toImage();
  EXPECT_NE(with, without);
  inside.FocusCell(3);
  EXPECT_EQ(inside.grab().toImage(), without);
  inside.setFocus();
  EXPECT_NE(inside.grab().toImage(), with) << "the ring went to another cell";
}

TEST_F(BoardWidget, PointingOutlinesUntilTheMouseLeaves) {
  board.clearFocus();
  const QImage before = board.grab().toImage();
  QTest::mouseMove(&board, Mark(20, 5));
  const QImage pointed = board.grab().toImage();
  EXPECT_NE(pointed, before);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&board, &leave);
  EXPECT_EQ(board.grab().toImage(), before);
}

// The mark under the mouse is told by its looks and by the cursor, whenever a left click would act.
TEST_F(BoardWidget, TellsTheMarkThatAClickWouldPlace) {
  board.setFocusPolicy(Qt::NoFocus);
  board.clearFocus();
  const auto picture = [this](QPoint place) {
    QTest::mouseMove(&board, place);
    return board.grab().toImage();
  };
  const QImage idle = picture(Mark(20, 5));
  EXPECT_NE(board.cursor().shape(), Qt::PointingHandCursor);
  const QImage ringed = picture(Mark(20, 2));
  EXPECT_NE(ringed, idle);
  EXPECT_EQ(board.cursor().shape(), Qt::PointingHandCursor);
  QTest::mousePress(&board, Qt::LeftButton, {}, Mark(20, 2));
  const QImage pressed = board.grab().toImage();
  EXPECT_NE(pressed, ringed);
  QTest::mouseMove(&board, Mark(20, 5));
  EXPECT_NE(board.cursor().shape(), Qt::PointingHandCursor) << "the press follows the mouse";
  QTest::mouseRelease(&board, Qt::LeftButton, {}, Mark(20, 2));
  EXPECT_EQ(board.cursor().shape(), Qt::PointingHandCursor);
  state.PlayBoard.Board[20] = 2;
  board.UpdateTarget();
  EXPECT_NE(board.cursor().shape(), Qt::PointingHandCursor) << "as after a click that acted";
}

TEST_F(BoardWidget, TargetIsWhatTheRulesOfTheGamePlace) {
  state.Candidates[20] = 0;
  state.Candidates[21] = BitOf(9);
  state.SavedPuzzle.Board[22] = 2;  // a given
  const auto isTarget = [this](int cell, int digit) {
    QTest::mouseMove(&board, Mark(cell, digit));
    return board.cursor().shape() == Qt::PointingHandCursor;
  };
  for (int digit = 1; digit <= kSide; ++digit) {
    EXPECT_FALSE(isTarget(20, digit));
    EXPECT_EQ(isTarget(21, digit), digit == 9);
    EXPECT_FALSE(isTarget(22, digit));
  }
  state.PencilmarkMode = MarkMode::kNotUpdated;
  EXPECT_TRUE(isTarget(20, 6));
  form.Enable(Button::CommandSolution, false);
  EXPECT_FALSE(isTarget(21, 9)) << "the game is over";
}

}  // namespace
}  // namespace tessel
