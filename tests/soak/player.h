// A player who makes puzzles of every kind, brings others from elsewhere, and plays them by hints,
// mistakes included, back and forth, and from one program to the next. What does not hold fails as
// in a test.
#pragma once

#include <memory>
#include <string>

#include "core/random_source.h"
#include "tests/fakes/test_program.h"

namespace tessel {

class Player {
 public:
  // One folder, used from the first puzzle to the last, and one program after the other in it.
  explicit Player(std::uint64_t seed);

  // Saws, fills and conceals in a mode chosen at random, now and then after a command stopped half
  // way, and checks layout, solution, puzzle and file.
  void MakePuzzle();
  // Opens a puzzle that was made as wished, and pasted in one of the formats.
  void BringPuzzle();
  // Plays the puzzle to its end.
  void PlayGame();

  struct Counts {
    long puzzles = 0;
    long stops = 0;
    long games = 0;
    long hints = 0;
    long mistakes = 0;
    long repairs = 0;
    long digitsWithoutHint = 0;
    long events = 0;
    long opened = 0;
    long undone = 0;  // and done again
    long continued = 0;
  };
  Counts made;

 private:
  int Draw(int n) { return DrawIndex(random_, n); }
  const GameState& State() const { return program_->State(); }
  void StartProgram(std::unique_ptr<TestProgram> program);
  void Click(Button button);
  void ClickMark(int cell, int digit, MouseButton button);
  void RunCommand(Button button, Button next);
  void CheckLayout();
  void CheckSolution();
  void CheckPuzzle();

  void PlayToTheEnd();
  std::string AskHint();
  bool FollowHints();
  void MakeMistakes();
  void RepairMistakes();
  bool Repair(const std::string& sentence);
  void RemoveStaleMarks(int cell);
  void PlaceSomeDigit();
  void GoBackAndForth();
  void ContinueInAnyMode();
  void ContinueFromBefore();
  void ContinueAnew();

  SeededRandom random_;
  std::unique_ptr<TestProgram> program_;
  bool asksSpecialPass_ = false;
  bool hasWholeHistory_ = true;  // of the game; the game file holds a limited number of steps
  long stopAt_ = 0;  // the pump of the running command that brings a click on its button
};

}  // namespace tessel
