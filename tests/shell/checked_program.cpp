#include "tests/shell/checked_program.h"

#include <algorithm>

#include "core/texts.h"
#include "tests/shell/enabled_buttons.h"

namespace tessel {

CheckedProgram::CheckedProgram(std::uint64_t firstSeed, SystemCalls& system)
    : program_(firstSeed, system),
      form_(program_.Display()),
      state_(program_.State()),
      caption_(texts::kProgram) {
  program_.view.onPump = [this](long) {
    if (insidePump) insidePump(++pumps_);
  };
  program_.view.onQuestion = [this] {
    asking_ = true;
    program_.view.answer = insideQuestion && insideQuestion();
    asking_ = false;
  };
  Check();
}

void CheckedProgram::Click(Button button) {
  const bool answers = Answers(button);
  if (answers && running_) {
    stopped_ = stopped_ || button == running_;
    program_.main.Click(button);
    return Check();
  }
  const PuzzleRecord board = state_.PlayBoard;
  const MaskBoard candidates = state_.Candidates;
  const std::size_t questions = program_.view.questions.size();
  if (answers) Begin(button);
  program_.main.Click(button);
  if (answers) End(button);
  const bool asks = answers && (button == Button::CommandExit || button == Button::CommandQuit);
  Expect(program_.view.questions.size() == questions + (asks ? 1 : 0), "asks when it should");
  if (button != Button::CommandSolve && button != Button::CommandRestart) {
    Expect(candidates == state_.Candidates, "no other button changes candidates");
    Expect(board == state_.PlayBoard || (answers && button == Button::CommandSolution),
           "no other button changes the board");
  }
  Check();
}

void CheckedProgram::Toggle(CheckBox box) {
  const bool answers = IsInSolveFrame(box) ? SolveButtonsAnswer() : !asking_;
  const bool before = form_.Checked(box);
  program_.main.Toggle(box);
  Expect(form_.Checked(box) == (answers ? !before : before), "a box answers when it should");
  if (answers && box == CheckBox::CheckPencilmarks) texts_ = Texts::kPlayBoard;
  Check();
}

void CheckedProgram::MouseUp(int cell, MouseButton button, double x, double y) {
  const PuzzleRecord before = state_.PlayBoard;
  const std::size_t sounds = program_.player.played.size();
  program_.main.Grid_MouseUp(cell, button, 0, x, y);
  if (ActedOn(cell, before, sounds)) {
    Expect(SolveButtonsAnswer() && open_, "clicks on cells act on an open board alone");
    open_ = std::ranges::count(state_.PlayBoard.Board, 0) > 0;
    texts_ = Texts::kPlayBoard;
  }
  Check();
}

// A click that acts is always heard. Only the clicked cell may change, and no given.
bool CheckedProgram::ActedOn(int cell, const PuzzleRecord& before, std::size_t sounds) {
  const bool acted = program_.player.played.size() > sounds;
  PuzzleRecord expected = before;
  if (acted && cell >= 0 && cell < kCellCount && state_.SavedPuzzle.Board[cell] == 0) {
    expected.Board[cell] = state_.PlayBoard.Board[cell];
  }
  Expect(state_.PlayBoard == expected, "a click changes its own cell alone and no given");
  return acted;
}

void CheckedProgram::RequestClose() {
  const bool asks = !running_ && !asking_;
  const std::size_t questions = program_.view.questions.size();
  const bool closes = program_.main.Form_QueryUnload();
  Expect(program_.view.questions.size() == questions + (asks ? 1 : 0), "closing asks");
  Expect(closes == (asks && program_.view.answer), "closing follows the answer");
  closed_ = closed_ || closes;
  Check();
}

// Whether the button is there to be clicked, by what has happened so far.
bool CheckedProgram::Answers(Button button) const {
  if (asking_) return false;
  switch (button) {
    case Button::CommandSaw:
    case Button::CommandExit:
      return !running_;
    case Button::CommandGo:
      return running_ ? running_ == button : stage_ >= Stage::kLayoutMade;
    case Button::CommandConceal:
      return running_ ? running_ == button : stage_ >= Stage::kGridFilled;
    case Button::CommandSolve:
      return !running_ && stage_ == Stage::kPuzzleConcealed;
    case Button::Command1:
      return true;
    case Button::CommandHint:
    case Button::CommandSolution:
      return SolveButtonsAnswer() && open_;
    case Button::CommandQuit:
    case Button::CommandRestart:
      return SolveButtonsAnswer();
  }
  return false;
}

void CheckedProgram::Begin(Button button) {
  if (!TraitsOf(button).isLongWork) return;
  running_ = button;
  stopped_ = false;
  pumps_ = 0;
  caption_ = texts::kProgram;
  // Conceal leaves the digits until its first redraw.
  texts_ = button == Button::CommandConceal ? Texts::kConcealment : Texts::kNothing;
}

void CheckedProgram::End(Button button) {
  switch (button) {
    case Button::CommandSaw:
      return EndCommand(Stage::kLayoutMade, "Sawed");
    case Button::CommandGo:
      return EndCommand(stopped_ ? Stage::kLayoutMade : Stage::kGridFilled, "Filled");
    case Button::CommandConceal:
      return EndCommand(stopped_ ? Stage::kGridFilled : Stage::kPuzzleConcealed, "Concealed");
    case Button::CommandSolve:
      caption_ = texts::kProgram;
      solving_ = true;
      return OpenBoard();
    case Button::CommandRestart:
      return OpenBoard();
    case Button::CommandSolution:
      open_ = false;
      texts_ = Texts::kPlayBoard;
      return;
    case Button::CommandQuit:
      if (!program_.view.answer) return;
      solving_ = false;
      texts_ = Texts::kSavedPuzzle;
      return;
    case Button::CommandExit:
    case Button::Command1:
    case Button::CommandHint:
      return;
  }
}

void CheckedProgram::EndCommand(Stage reached, const char* done) {
  running_.reset();
  stage_ = reached;
  if (!stopped_) caption_ = std::string(texts::kProgram) + " - " + done + " in 1.23 ms";
  texts_ = reached == Stage::kPuzzleConcealed ? Texts::kSavedPuzzle : Texts::kNothing;
}

void CheckedProgram::OpenBoard() {
  open_ = true;
  opened_ = state_.SavedPuzzle;
  Expect(state_.PlayBoard == opened_, "Restart copies the saved puzzle");
  texts_ = Texts::kPlayBoard;
}

void CheckedProgram::Check() {
  CheckButtons();
  CheckSolveButtons();
  CheckGivens();
  Expect(form_.Caption() == caption_, "the caption tells of the last command");
  for (int cell = 0; cell < kCellCount; ++cell) CheckCell(cell);
}

// In every state.
void CheckedProgram::CheckButtons() {
  const Stage stage = running_ == Button::CommandSaw       ? Stage::kSawing
                      : running_ == Button::CommandGo      ? Stage::kFilling
                      : running_ == Button::CommandConceal ? Stage::kConcealing
                                                           : stage_;
  const std::string_view expected = kEnabledButtons[static_cast<std::size_t>(stage)];
  Expect(EnabledButtons(form_) == expected, "the enabled buttons fit the stage");
}

// In every state; outside the solving mode Hint and Solution keep what it left.
void CheckedProgram::CheckSolveButtons() {
  Expect(form_.SolveButtonsVisible() == solving_, "the frame is shown while solving");
  Expect(form_.SolveButtonsEnabled() == !running_, "the frame is dead while a command runs");
  for (const Button button : {Button::CommandHint, Button::CommandSolution}) {
    Expect(form_.Of(button).enabled == open_, "Hint and Solution follow the board");
  }
  for (const Button button : {Button::CommandQuit, Button::CommandRestart}) {
    Expect(form_.Of(button).enabled, "Quit and Restart are always on");
  }
  Expect(state_.Finished == !open_, "Finished follows the board");
  const bool pending = state_.AssignmentPending == Bool16::kTrue;
  Expect(form_.Of(Button::CommandHint).caption == (pending ? texts::kShowMe : texts::kHint),
         "Show Me stands for a pending assignment");
  const bool automatic = state_.PencilmarkMode == MarkMode::kAutomatic;
  Expect(form_.Checked(CheckBox::CheckPencilmarks) == automatic, "the box is in step");
}

// The givens of the opened puzzle stand on the board until Conceal saves another: from then on the
// clicks go by the givens of that one, while the old board goes on until Restart.
void CheckedProgram::CheckGivens() {
  Expect(state_.PlayBoard.Solution == opened_.Solution, "the solution is that of Restart");
  if (state_.SavedPuzzle != opened_) return;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int given = opened_.Board[cell];
    Expect(given == 0 || state_.PlayBoard.Board[cell] == given, "givens never change");
  }
}

void CheckedProgram::CheckCell(int cell) {
  const DisplayedCell& look = form_.Cell(cell);
  Expect(texts_ == Texts::kConcealment || look.text == ExpectedText(cell), "the text of a cell");
  const Mask marks = ExpectedMarks(cell);
  for (int digit = 1; digit <= kSide; ++digit) {
    if (look.marks[digit - 1].visible != Holds(marks, digit)) Expect(false, "the marks of a cell");
  }
}

// The digits follow the board as played from one refresh of the solving mode to the next command
// of the generation, which clears them although the board goes on; Quit shows the saved puzzle.
int CheckedProgram::ExpectedText(int cell) const {
  switch (texts_) {
    case Texts::kNothing:
    case Texts::kConcealment:
      return 0;
    case Texts::kPlayBoard:
      return state_.PlayBoard.Board[cell];
    case Texts::kSavedPuzzle:
      return state_.SavedPuzzle.Board[cell];
  }
  return 0;
}

// While the board as played is shown, the marks are those of the candidates in an empty cell (all
// nine when they are not updated) and none beside a digit; else all nine, however they are
// coloured. A command of the generation shows them when it begins.
Mask CheckedProgram::ExpectedMarks(int cell) const {
  if (!solving_ || texts_ != Texts::kPlayBoard) return kAllCandidates;
  if (state_.PlayBoard.Board[cell] != 0) return 0;
  return state_.PencilmarkMode == MarkMode::kAutomatic ? state_.Candidates[cell] : kAllCandidates;
}

void CheckedProgram::Expect(bool holds, const char* promise) {
  if (!holds && complaint_.empty()) complaint_ = promise;
}

}  // namespace tessel
