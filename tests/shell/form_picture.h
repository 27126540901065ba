// The form as text, so that two states of the window can be compared as a whole.
#pragma once

#include <array>
#include <ostream>
#include <sstream>
#include <string>

#include "core/form.h"

namespace tessel {

inline constexpr std::array kButtons{
    Button::CommandSaw,     Button::CommandGo,      Button::CommandConceal, Button::CommandSolve,
    Button::CommandExit,    Button::Command1,       Button::CommandHint,    Button::CommandQuit,
    Button::CommandRestart, Button::CommandSolution};
static_assert(kButtons.size() == kButtonCount);

inline constexpr std::array kCheckBoxes{CheckBox::Rotational, CheckBox::MakeRegular,
                                        CheckBox::ConcealRotational, CheckBox::CheckVisualize,
                                        CheckBox::CheckPencilmarks};
static_assert(kCheckBoxes.size() == kCheckBoxCount);

inline void DrawColour(std::ostream& out, Rgb colour) {
  out << static_cast<int>(colour.red) << ',' << static_cast<int>(colour.green) << ','
      << static_cast<int>(colour.blue);
}

inline void DrawCell(std::ostream& out, const DisplayedCell& look) {
  out << look.text << (look.opaque ? " on " : " over ");
  DrawColour(out, look.background);
  for (const DisplayedMark& mark : look.marks) {
    out << (mark.visible ? " +" : " -") << (mark.bold ? "b" : "");
    DrawColour(out, mark.colour);
  }
  out << '\n';
}

inline void DrawLines(std::ostream& out, const Form& form) {
  for (int line = 0; line < kSide; ++line) {
    DrawColour(out, form.LabelRow(line));
    out << ' ';
    DrawColour(out, form.LabelColumn(line));
    out << '\n';
  }
}

// Every button and box, a line each.
inline std::string ControlsOf(const Form& form) {
  std::ostringstream out;
  for (const Button button : kButtons) {
    out << form.Of(button).caption << (form.Of(button).enabled ? " on\n" : " off\n");
  }
  for (const CheckBox box : kCheckBoxes) out << form.Checked(box) << '\n';
  return out.str();
}

// Everything that the window shows.
inline std::string PictureOf(const Form& form) {
  std::ostringstream out;
  out << form.Caption() << '\n' << form.Notice() << '\n' << form.TextHint() << '\n';
  out << form.SolveButtonsVisible() << form.SolveButtonsEnabled() << '\n' << ControlsOf(form);
  DrawLines(out, form);
  for (int cell = 0; cell < kCellCount; ++cell) DrawCell(out, form.Cell(cell));
  return out.str();
}

}  // namespace tessel
