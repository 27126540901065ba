// The window's buttons and check boxes, and what is fixed about each of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/texts.h"

namespace tessel {

enum class Button : std::uint8_t {
  CommandSaw,
  CommandGo,
  CommandConceal,
  CommandSolve,
  CommandExit,
  Command1,
  CommandHint,
  CommandQuit,
  CommandRestart,
  CommandSolution,
};

enum class CheckBox : std::uint8_t {
  Rotational,
  MakeRegular,
  ConcealRotational,
  CheckVisualize,
  CheckPencilmarks,
};

enum class ControlGroup : std::uint8_t {
  kGeneration,
  kSolving,   // in the frame `SolveButtons`
  kProgram,   // answers in every mode
  kNotShown,  // kept for its name alone
};

struct ButtonTraits {
  Button button;
  const char* name;
  const char* caption;  // at the start; a stage may show another one
  ControlGroup group;
  bool enabledAtStart;
  bool isLongWork;   // pumps events while it works, and has the window to itself
  const char* keys;  // the shortcut, as Qt writes it
  const char* tip;
  const char* needs;  // what enables it, told while it is disabled
};

struct CheckBoxTraits {
  CheckBox box;
  const char* name;
  const char* caption;
  ControlGroup group;
  bool checkedAtStart;
  const char* keys;
  const char* tip;
};

// One row for each enumerator, in their order: TraitsOf looks nothing up.
inline constexpr std::array<ButtonTraits, 10> kButtonTable{{
    {Button::CommandSaw, "CommandSaw", "Saw", ControlGroup::kGeneration, true, true, "Alt+S",
     "Saw the board into nine new cages", ""},
    {Button::CommandGo, "CommandGo", texts::kFill, ControlGroup::kGeneration, false, true, "Alt+F",
     "Fill the cages with a solution, or stop filling", "Saw first"},
    {Button::CommandConceal, "CommandConceal", texts::kConceal, ControlGroup::kGeneration, false,
     true, "Alt+C", "Conceal cells and save the puzzle, or stop concealing", "Fill first"},
    {Button::CommandSolve, "CommandSolve", "Solve", ControlGroup::kGeneration, false, false,
     "Alt+L", "Play the puzzle", "Conceal first"},
    {Button::CommandExit, "CommandExit", "Exit", ControlGroup::kProgram, true, false, "Alt+X",
     "Leave the program", ""},
    {Button::Command1, "Command1", "", ControlGroup::kNotShown, true, false, "", "", ""},
    {Button::CommandHint, "CommandHint", texts::kHint, ControlGroup::kSolving, true, false, "Alt+H",
     "Tell the next logical step", "The board is full: Restart first"},
    {Button::CommandQuit, "CommandQuit", "Quit", ControlGroup::kSolving, true, false, "Alt+Q",
     "Stop playing this puzzle", ""},
    {Button::CommandRestart, "CommandRestart", "Restart", ControlGroup::kSolving, true, false,
     "Alt+R", "Begin this puzzle again", ""},
    {Button::CommandSolution, "CommandSolution", "Solution", ControlGroup::kSolving, true, false,
     "Alt+N", "Show the solution", "The board is full: Restart first"},
}};

inline constexpr std::array<CheckBoxTraits, 5> kCheckBoxTable{{
    {CheckBox::Rotational, "Rotational", "Saw 180° Rotational", ControlGroup::kGeneration, false,
     "Alt+O", "Cages that look the same after half a turn; Make regular Sudoku wins over this"},
    {CheckBox::MakeRegular, "MakeRegular", "Make regular Sudoku", ControlGroup::kGeneration, false,
     "Alt+M", "The nine 3×3 boxes instead of sawn cages; wins over Saw 180° Rotational"},
    {CheckBox::ConcealRotational, "ConcealRotational", "Conceal 180° Rotational",
     ControlGroup::kGeneration, false, "Alt+T", "Conceal cells in pairs that face each other"},
    {CheckBox::CheckVisualize, "CheckVisualize", "Visualize progress", ControlGroup::kGeneration,
     false, "Alt+V", "Leave this unchecked for faster execution"},
    {CheckBox::CheckPencilmarks, "CheckPencilmarks", "Update Pencilmarks", ControlGroup::kSolving,
     true, "Alt+U", "Take a placed digit out of the marks of its row, column and cage"},
}};

inline constexpr std::size_t kButtonCount = kButtonTable.size();
inline constexpr std::size_t kCheckBoxCount = kCheckBoxTable.size();

// The place of a control in its table, from 0.
constexpr std::size_t IndexOf(Button button) {
  return static_cast<std::size_t>(button);
}
constexpr std::size_t IndexOf(CheckBox box) {
  return static_cast<std::size_t>(box);
}

// The row of a control.
constexpr const ButtonTraits& TraitsOf(Button button) {
  return kButtonTable[IndexOf(button)];
}
constexpr const CheckBoxTraits& TraitsOf(CheckBox box) {
  return kCheckBoxTable[IndexOf(box)];
}

static_assert([] {
  for (std::size_t i = 0; i < kButtonCount; ++i) {
    if (IndexOf(kButtonTable[i].button) != i) return false;
  }
  for (std::size_t i = 0; i < kCheckBoxCount; ++i) {
    if (IndexOf(kCheckBoxTable[i].box) != i) return false;
  }
  return true;
}());

// Of a Button or a CheckBox.
template <typename Control>
constexpr bool IsInSolveFrame(Control control) {
  return TraitsOf(control).group == ControlGroup::kSolving;
}

}  // namespace tessel
