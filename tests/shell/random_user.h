// A user who clicks at random, also in the middle of commands and questions.
#pragma once

#include <deque>
#include <memory>
#include <string>

#include "core/random_source.h"
#include "tests/shell/checked_program.h"

namespace tessel {

class RandomUser {
 public:
  // Plays with programs whose own choices follow from the seed as well.
  explicit RandomUser(std::uint64_t seed);

  // Makes at least that many events, or stops at the first broken promise, which is told with the
  // events that led to it. Empty when every promise was kept.
  std::string Play(long events);

  // How many events there were, and how many of them in which situation.
  struct Counts {
    long events = 0;
    long insidePumps = 0;
    long insideQuestions = 0;
    long whileSolving = 0;
    long puzzles = 0;
    long gamesFinished = 0;
    long programs = 0;
  };
  const Counts& Made() const { return made_; }

 private:
  bool Chance(int oneIn) { return DrawIndex(random_, oneIn) == 0; }
  int Draw(int n) { return DrawIndex(random_, n); }
  void StartProgram();
  void MakeEvent();
  void Click(Button button);
  void ClickNextStage();
  void RequestClose();
  void ClickSolving();
  void ToggleSomething();
  void ClickSomewhere();
  void PlaceRightDigit();
  void FinishBoard();
  void ClickMark(int cell, int digit, MouseButton button);
  void ActInsidePump(long pump);
  bool AnswerQuestion();
  void Note(const std::string& event);     // of an event about to be made
  void Remember(const std::string& line);  // for the story of a broken promise

  SeededRandom random_;
  std::uint64_t nextProgram_;
  std::unique_ptr<CheckedProgram> program_;
  Counts made_;
  std::deque<std::string> trail_;  // the latest events
};

}  // namespace tessel
