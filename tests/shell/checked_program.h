// A program under test that is told every event and checks after each what must hold then.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "shell/stage.h"
#include "tests/fakes/test_program.h"

namespace tessel {

class CheckedProgram {
 public:
  explicit CheckedProgram(std::uint64_t firstSeed, SystemCalls& system = UnthreadedCalls::Shared());
  CheckedProgram(const CheckedProgram&) = delete;
  CheckedProgram& operator=(const CheckedProgram&) = delete;

  // The events; they may come from inside a pump or an open question too.
  void Click(Button button);
  void Toggle(CheckBox box);
  void MouseUp(int cell, MouseButton button, double x, double y);
  void RequestClose();

  // Called inside the n-th pump of the running command.
  std::function<void(long pump)> insidePump;
  // Called inside an open question; returns the answer.
  std::function<bool()> insideQuestion;

  // The first promise that was broken; empty when none was.
  const std::string& Complaint() const { return complaint_; }
  // Whether the user has left the program.
  bool Ended() const { return program_.view.ends > 0 || closed_; }
  // The stage reached so far: none of those of a running command.
  Stage GenerationStage() const { return stage_; }
  std::optional<Button> Running() const { return running_; }
  bool Solving() const { return solving_; }
  bool BoardIsOpen() const { return open_; }
  const GameState& State() { return program_.State(); }

 private:
  // What the digits of the board show.
  enum class Texts : std::uint8_t { kNothing, kPlayBoard, kSavedPuzzle, kConcealment };

  bool Answers(Button button) const;
  bool SolveButtonsAnswer() const { return solving_ && !running_ && !asking_; }
  void Begin(Button button);
  void End(Button button);
  void EndCommand(Stage reached, const char* done);
  void OpenBoard();
  bool ActedOn(int cell, const PuzzleRecord& before, std::size_t sounds);

  void Check();
  void CheckButtons();
  void CheckSolveButtons();
  void CheckGivens();
  void CheckCell(int cell);
  int ExpectedText(int cell) const;
  Mask ExpectedMarks(int cell) const;
  void Expect(bool holds, const char* promise);

  TestProgram program_;
  const Form& form_;
  const GameState& state_;

  Stage stage_ = Stage::kLayoutNeeded;  // the one reached, whatever runs
  std::optional<Button> running_;
  bool stopped_ = false;  // the running command was told to stop
  bool asking_ = false;
  bool solving_ = false;  // the solving mode is open
  bool open_ = true;      // the board takes digits
  bool closed_ = false;
  long pumps_ = 0;
  Texts texts_ = Texts::kNothing;
  PuzzleRecord opened_;  // the puzzle that Restart copied last
  std::string caption_;
  std::string complaint_;
};

}  // namespace tessel
