// A user in front of the real program: knows where everything lies, presses it with the mouse, and
// sees what is painted.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "shell/stage.h"
#include "tests/e2e/expected_board.h"
#include "tests/e2e/running_program.h"
#include "tests/e2e/window_twin.h"

namespace tessel {

// A generation command's button and what the caption says at its end.
struct Generation {
  const char* button;
  const char* done;
};
inline constexpr Generation kSaw{"CommandSaw", "Sawed"};
inline constexpr Generation kFill{"CommandGo", "Filled"};
inline constexpr Generation kConceal{"CommandConceal", "Concealed"};

// The title of a game's questions, and what is asked.
inline constexpr char kSolver[] = "Tessel Sudoku - Solver";
inline constexpr char kQuitSolving[] = "Do you really want to quit solving ?";
inline constexpr char kQuitProgram[] = "Do you really want to quit this program?";

class User {
 public:
  // Starts the program that lies in `folder`.
  explicit User(const std::filesystem::path& folder, const Launch& launch = {});

  RunningProgram& Program() { return program_; }
  testing::AssertionResult ResizesWindow(QSize size);
  // The window's size has changed by another hand.
  void NoticesSize() { twin_.Resize(program_.Window().Area().size()); }

  // By mouse: a left click on the control of this name; a click on a digit's mark.
  void Press(const char* control) const;
  void ClickMark(int cell, int digit, MouseKey button);

  // Opens the entry's menu and chooses it there: with the mouse; by the letters that both
  // underline.
  void Choose(Entry entry) const;
  void ChooseByKeys(Entry entry) const;

  // By keyboard: the shortcut that the control's tooltip tells; a key on a cell, to which the arrow
  // keys lead from the one that has the focus.
  void PressShortcut(const char* control) const;
  void PressOnCell(int cell, const QString& key);

  // The question is open and reads like this. Answers it.
  enum class By { kMouse, kKeyboard };
  testing::AssertionResult Answers(const char* title, const char* question, bool yes,
                                   By by = By::kMouse) const;

  // By mouse: Saw, Fill and Conceal, each to its end; one of them.
  testing::AssertionResult MakesPuzzle();
  testing::AssertionResult RunsCommand(const Generation& command);

  // Whether the window comes to look so.
  testing::AssertionResult SeesCaption(const std::string& pattern) const;
  // The caption that tells how long a command took: "Sawed", "Filled" or "Concealed".
  testing::AssertionResult SeesTime(const std::string& done) const;
  testing::AssertionResult SeesStage(Stage stage);
  testing::AssertionResult SeesButton(const char* button, const char* caption, bool enabled);
  // At the left of the foot line, whatever stands behind it.
  testing::AssertionResult SeesNews(const std::string& text);
  testing::AssertionResult SeesText(const char* label, const std::string& text);
  testing::AssertionResult SeesSolveButtons(bool visible) const;
  testing::AssertionResult SeesDigitBar(bool visible) const;
  testing::AssertionResult SeesBoard(const ExpectedBoard& board) const;

  // Moves the mouse onto a mark and, if it is to be pressed, holds the left button down there.
  // Whether the board comes to show that a click would place the mark, or that it would not; the
  // board must have the keyboard's focus.
  testing::AssertionResult SeesTarget(const ExpectedBoard& board, const TargetMark& target);
  testing::AssertionResult SeesNoTarget(const ExpectedBoard& board, int cell, int digit);

  // Whether the board comes to look so, with the mouse where it is.
  testing::AssertionResult SeesHighlights(const ExpectedBoard& board,
                                          const BoardHighlights& highlights,
                                          const CageColours& colours = kCageColours) const;
  // The same, while the mouse moves about in the active cell: one that stays where it is tells
  // nothing, and one that moves while a menu is still open tells it to the menu.
  testing::AssertionResult SeesPointed(const ExpectedBoard& board,
                                       const BoardHighlights& highlights,
                                       const CageColours& colours) const;
  void PointAt(int cell, int digit) const;

  // What the board shows now, and whether it is that.
  QImage LooksAtBoard() const;
  bool Recognises(const QImage& picture, const ExpectedBoard& board) const;
  // Whether the button looks more like an enabled one with this caption than like a disabled one.
  bool LooksEnabled(const char* button, const char* caption);
  // Whether "Fill" has become the button "Stop" of a running command.
  bool LooksAsIfFilling();

 private:
  QImage LooksAt(const QRect& area) const;
  // Does that before each look.
  testing::AssertionResult SeesOnBoard(const QImage& expected,
                                       const std::function<void()>& prepare) const;
  // What is hidden leaves its place empty.
  testing::AssertionResult SeesSomethingIn(const QRect& area, bool visible) const;
  BoardHighlights Focus() const;

  RunningProgram program_;
  WindowTwin twin_;
  int focusedCell_ = kCentreCell;  // by the keyboard, whenever the board has it
};

}  // namespace tessel
