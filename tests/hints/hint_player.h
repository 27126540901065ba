// Plays the puzzle before the player by following the hints and nothing else.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/fakes/test_program.h"

namespace tessel {

class HintPlayer {
 public:
  // The program must be in solving mode, with automatic marks.
  explicit HintPlayer(TestProgram& program) : program_(program), state_(program.State()) {}

  // Follows hints until the board is full (true) or no hint is left (false). Every hint is checked
  // against the solution; a false one fails the test and ends the play.
  bool Play();

  // Before every hint, asks the special pass too and checks what it announces.
  bool asksSpecialPass = false;
  // How often each kind of hint came up.
  std::map<std::string, int> counts;
  int specialAnnouncements = 0;

 private:
  using Positions = unsigned;  // bit k: the k-th cell of a house, or digit k + 1

  void AskSpecialPass();
  void Follow(const std::string& sentence);
  void PlaceSingle();

  // What the pattern that the hint names allows to be removed, worked out anew.
  void FindPointing();
  void FindBoxLine();
  void FindNaked(const std::vector<int>& house, int size);
  void FindHidden(const std::vector<int>& house, int size);
  void FindFish(int lines);
  void RemoveMarks();

  std::vector<int> NamedHouse() const;
  Mask At(int cell) const { return state_.Candidates[cell]; }
  int SolutionOf(int cell) const { return state_.PlayBoard.Solution[cell]; }
  void Remove(int cell, Mask digits);

  TestProgram& program_;
  const GameState& state_;
  std::vector<std::pair<int, int>> removals_;  // cell, digit
};

}  // namespace tessel
