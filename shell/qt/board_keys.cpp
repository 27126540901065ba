// The board by keyboard: a key moves the focus, or releases a button on a mark of the focused cell.
#include <QKeyEvent>
#include <algorithm>

#include "shell/qt/board_widget.h"

namespace tessel {

namespace {

struct Step {
  int rows;
  int columns;
};

// How far a key moves the focus; moves beyond the board's edge end at the edge.
std::optional<Step> StepOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return Step{0, -1};
    case Qt::Key_Right:
      return Step{0, 1};
    case Qt::Key_Up:
      return Step{-1, 0};
    case Qt::Key_Down:
      return Step{1, 0};
    case Qt::Key_Home:
      return Step{0, -kSide};
    case Qt::Key_End:
      return Step{0, kSide};
    case Qt::Key_PageUp:
      return Step{-kSide, 0};
    case Qt::Key_PageDown:
      return Step{kSide, 0};
  }
  return std::nullopt;
}

// The key's own digit; else that of its place in the row above the letters, which some layouts give
// to other signs and leave the digits to Shift.
std::optional<int> DigitOf(const QKeyEvent& event) {
  constexpr quint32 kScanCodeOfOne = 10;  // under X11 and Wayland, up to 18 for 9
  const int key = event.key();
  if (key >= Qt::Key_1 && key <= Qt::Key_9) return key - Qt::Key_0;
  const quint32 place = event.nativeScanCode();
  const bool inRow = place >= kScanCodeOfOne && place < kScanCodeOfOne + kSide;
  if (!inRow || event.modifiers().testFlag(Qt::ShiftModifier)) return std::nullopt;
  return static_cast<int>(place - kScanCodeOfOne) + 1;
}

}  // namespace

void BoardWidget::keyPressEvent(QKeyEvent* event) {
  if (!MoveFocus(event->key()) && !ActOnKey(*event)) QWidget::keyPressEvent(event);
}

bool BoardWidget::MoveFocus(int key) {
  const auto step = StepOf(key);
  if (!step) return false;
  SetHoveredCell(std::nullopt);
  FocusCell(CellAt(std::clamp(RowOf(focusedCell_) + step->rows, 0, kSide - 1),
                   std::clamp(ColumnOf(focusedCell_) + step->columns, 0, kSide - 1)));
  return true;
}

// The number pad's 0 and point are Insert and Delete, whatever NumLock says.
bool BoardWidget::ActOnKey(const QKeyEvent& event) {
  const int key = event.key();
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  const bool isDelete = key == Qt::Key_Delete || key == Qt::Key_Backspace ||
                        (keypad && (key == Qt::Key_Period || key == Qt::Key_Comma));
  const bool isInsert = key == Qt::Key_Insert || (keypad && key == Qt::Key_0);
  const auto digit = DigitOf(event);
  if (event.modifiers().testAnyFlags(Qt::AltModifier | Qt::MetaModifier)) return false;
  if (!isDelete && !isInsert && !digit) return false;
  if (event.isAutoRepeat()) return true;
  SetHoveredCell(std::nullopt);
  if (isDelete) {
    const int shown = form_ == nullptr ? 0 : form_->Cell(focusedCell_).text;
    if (shown != 0) ReleaseOnMark(shown, MouseButton::kRight);
  } else if (isInsert) {
    ReleaseOnMark(5, MouseButton::kMiddle);
  } else {
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    ReleaseOnMark(*digit, control ? MouseButton::kRight : MouseButton::kLeft);
  }
  return true;
}

void BoardWidget::ReleaseOnMark(int digit, MouseButton button) {
  const CellPosition at = MarkCentre(digit);
  emit CellReleased(focusedCell_, button, at.x, at.y);
}

}  // namespace tessel
