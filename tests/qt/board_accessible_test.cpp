#include "shell/qt/board_accessible.h"

#include <gtest/gtest.h>

#include "core/names.h"
#include "tests/qt/accessible_tree.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

TEST(BoardAccessible, Offers81CellsByName) {
  WindowProgram program;
  QAccessibleInterface* board = AccessibleOf(program.Board());
  EXPECT_EQ(board->text(QAccessible::Name), "Board");
  ASSERT_EQ(board->childCount(), 81);
  for (int cell = 0; cell < kCellCount; ++cell) {
    QAccessibleInterface* child = board->child(cell);
    EXPECT_EQ(child->text(QAccessible::Name).toStdString(), CellName(cell));
    EXPECT_EQ(child->parent(), board);
    EXPECT_EQ(board->indexOfChild(child), cell);
    EXPECT_EQ(board->child(cell), child) << "one interface a cell";
    EXPECT_EQ(child->role(), QAccessible::Cell);
    EXPECT_TRUE(child->isValid());
    EXPECT_EQ(child->childCount(), 0);
  }
  EXPECT_EQ(board->child(0)->text(QAccessible::Name), "A1");
  EXPECT_EQ(board->child(80)->text(QAccessible::Name), "J9");
  EXPECT_EQ(board->child(81), nullptr);
  EXPECT_EQ(board->child(-1), nullptr);
}

TEST(BoardAccessible, CellsLieWhereTheyArePainted) {
  WindowProgram program;
  QAccessibleInterface* board = AccessibleOf(program.Board());
  for (int cell = 0; cell < kCellCount; ++cell) {
    const QRect place = board->child(cell)->rect();
    const QRect painted = program.Board()->CellRect(cell).toRect();
    EXPECT_EQ(place.size(), painted.size());
    EXPECT_EQ(place.topLeft(), program.Board()->mapToGlobal(painted.topLeft()));
    EXPECT_EQ(board->childAt(place.center().x(), place.center().y()), board->child(cell));
    EXPECT_TRUE(board->rect().contains(place));
  }
}

TEST(BoardAccessible, TellsGivensEntriesAndMarks) {
  WindowProgram program;
  program.OpenPuzzle();
  QAccessibleInterface* board = AccessibleOf(program.Board());
  const int empty = program.FirstEmptyCell();
  QString marks;
  for (int digit = 1; digit <= kSide; ++digit) {
    if (program.Display().Mark(empty, digit).visible) marks += QString(" %1").arg(digit);
  }
  EXPECT_EQ(board->child(empty)->text(QAccessible::Value), "empty with marks" + marks);
  EXPECT_FALSE(board->child(empty)->state().readOnly);
  const int digit = program.SolutionAt(empty);
  program.ClickMark(empty, digit);
  EXPECT_EQ(board->child(empty)->text(QAccessible::Value), QString("entry %1").arg(digit));
  int given = 0;
  while (program.State().SavedPuzzle.Board[static_cast<std::size_t>(given)] == 0) ++given;
  EXPECT_EQ(board->child(given)->text(QAccessible::Value),
            QString("given %1").arg(program.Display().Cell(given).text));
  EXPECT_TRUE(board->child(given)->state().readOnly);
}

TEST(BoardAccessible, CellWithoutMarksIsEmpty) {
  WindowProgram program;
  EXPECT_EQ(AccessibleOf(program.Board())->child(0)->text(QAccessible::Value), "empty");
}

TEST(BoardAccessible, FocusIsOnTheFocusedCell) {
  WindowProgram program;
  program.Board()->setFocus();
  program.Board()->FocusCell(33);
  QAccessibleInterface* board = AccessibleOf(program.Board());
  EXPECT_EQ(board->focusChild(), board->child(33));
  EXPECT_TRUE(board->child(33)->state().focused);
  EXPECT_FALSE(board->child(34)->state().focused);
}

TEST(BoardAccessible, EverythingInTheWindowHasAName) {
  WindowProgram program;
  program.OpenPuzzle();
  int cells = 0;
  int controls = 0;
  for (QAccessibleInterface* node : TreeOf(AccessibleOf(&program.window))) {
    cells += node->role() == QAccessible::Cell;
    controls += node->role() == QAccessible::PushButton || node->role() == QAccessible::CheckBox;
    const bool speaks = node->state().focusable || node->role() == QAccessible::Cell ||
                        (node->object() != nullptr && node->object()->objectName() == "TextHint");
    if (speaks && !node->state().invisible) {
      EXPECT_FALSE(node->text(QAccessible::Name).isEmpty())
          << node->object()->objectName().toStdString();
    }
  }
  EXPECT_EQ(cells, 81);
  EXPECT_EQ(controls, 9 + 2 + 5 + 1) << "nine buttons, undo and redo, five boxes, help";
}

TEST(BoardAccessible, HintTextCanBeRead) {
  WindowProgram program;
  program.OpenPuzzle();
  EXPECT_TRUE(AccessibleOf(program.Find<QLabel>("TextHint"))
                  ->text(QAccessible::Name)
                  .contains("Press [Hint] if you got stuck"));
}

}  // namespace
}  // namespace tessel
