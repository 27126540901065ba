// A user who clicks on everything at a moment when nothing may happen.
#pragma once

#include <algorithm>
#include <initializer_list>

#include "tests/fakes/test_program.h"
#include "tests/shell/form_picture.h"

namespace tessel {

inline constexpr std::array kMouseButtons{MouseButton::kLeft, MouseButton::kRight,
                                          MouseButton::kMiddle};

inline void ClickEveryCell(TestProgram& program) {
  for (int cell = -1; cell <= kCellCount; ++cell) {
    for (const MouseButton button : kMouseButtons) {
      program.ClickMark(cell, 1 + (cell + kSide) % kSide, button);
      program.main.Grid_MouseUp(cell, button, 1, -300, 400);
    }
  }
}

inline void ClickEveryButtonBut(TestProgram& program, std::initializer_list<Button> spared) {
  for (const Button button : kButtons) {
    if (std::ranges::count(spared, button) == 0) program.main.Click(button);
  }
}

// Inside a running command: the options of the generation may be changed, so each is ticked and
// unticked again. `stop` is the button that would stop the command.
inline void DisturbCommand(TestProgram& program, std::initializer_list<Button> stop = {}) {
  ClickEveryButtonBut(program, stop);
  for (const CheckBox box : kCheckBoxes) {
    program.main.Toggle(box);
    if (!IsInSolveFrame(box)) program.main.Toggle(box);
  }
  ClickEveryCell(program);
  program.main.Form_QueryUnload();
}

// Inside an open question.
inline void DisturbQuestion(TestProgram& program) {
  ClickEveryButtonBut(program, {});
  for (const CheckBox box : kCheckBoxes) program.main.Toggle(box);
  ClickEveryCell(program);
  program.main.Form_QueryUnload();
}

}  // namespace tessel
