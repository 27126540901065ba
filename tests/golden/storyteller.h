// Plays with the program and writes down each action and what visibly followed.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "tests/fakes/test_program.h"
#include "tests/golden/sight.h"

namespace tessel {

class Storyteller {
 public:
  explicit Storyteller(std::uint64_t firstSeed);

  // A sentence of the story, between the actions.
  void Say(const std::string& sentence);

  void Click(Button button);
  void Tick(CheckBox box);
  void Left(int cell, int digit) { ClickMark(cell, digit, MouseButton::kLeft, "left"); }
  void Right(int cell, int digit) { ClickMark(cell, digit, MouseButton::kRight, "right"); }
  void Middle(int cell) { ClickMark(cell, 5, MouseButton::kMiddle, "middle"); }
  void Close();
  // How the next questions are answered.
  void Answer(bool yes) { program_.view.answer = yes; }
  // Does something inside the n-th pump of the next command.
  void InPump(long pump, std::function<void()> act);
  void DrawBoard();

  const Form& Display() const { return program_.Display(); }
  const GameState& State() { return program_.State(); }
  int Solution(int cell) { return State().PlayBoard.Solution[cell]; }
  bool Playing() const;

  const std::string& Story() const { return story_; }

 private:
  void ClickMark(int cell, int digit, MouseButton button, const std::string& which);
  void Act(const std::string& action, const std::function<void()>& act);
  void TellWhatFollowed();
  void Write(const std::string& line);

  TestProgram program_;
  Sight seen_;
  std::string story_;
  std::string indent_;
  std::size_t toldSounds_ = 0;
  std::size_t toldQuestions_ = 0;
  int toldBeeps_ = 0;
  int toldEnds_ = 0;
};

}  // namespace tessel
