// A user in front of the real program: knows where everything lies, presses it with the mouse, and
// sees what is painted.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/e2e/expected_board.h"
#include "tests/e2e/running_program.h"
#include "tests/e2e/window_twin.h"

namespace tessel {

enum class Stage { kLayoutNeeded, kLayoutMade, kGridFilled, kPuzzleConcealed };

class User {
 public:
  // Starts the program that lies in `folder`.
  explicit User(const std::filesystem::path& folder,
                const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

  RunningProgram& Program() { return program_; }
  void ResizeWindow(QSize size);

  // A left click on the control of this name.
  void Press(const char* control) const;
  void ClickMark(int cell, int digit, Hand button);
  // The question is open and reads like this; answers it by mouse.
  testing::AssertionResult Answers(const char* title, const char* question, bool yes) const;

  // Saw, Fill and Conceal, each to its end.
  testing::AssertionResult MakesPuzzle();
  testing::AssertionResult RunsCommand(const char* button, const char* told);

  // Whether the window comes to look so.
  testing::AssertionResult SeesCaption(const std::string& pattern) const;
  testing::AssertionResult SeesStage(Stage stage);
  testing::AssertionResult SeesButton(const char* button, const char* caption, bool enabled);
  testing::AssertionResult SeesText(const char* label, const std::string& text);
  testing::AssertionResult SeesBoard(const ExpectedBoard& board) const;

  // What the board shows now, and whether it is that.
  QImage LooksAtBoard() const;
  bool Recognises(const QImage& picture, const ExpectedBoard& board) const;
  // Whether the button looks more like this than like its opposite.
  bool LooksEnabled(const char* button, const char* caption);

  // The cell that has the keyboard's focus when the board has it.
  void FocusIsAt(int cell) { focusedCell_ = cell; }

 private:
  QImage LooksAt(const QRect& area) const;

  RunningProgram program_;
  WindowTwin twin_;
  int focusedCell_ = kCentreCell;
};

}  // namespace tessel
