// One click of the hint button written a second time, step by step, with what it leaves behind.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "tests/oracle/hints/literal_hints.h"

namespace tessel::literal {

struct LiteralClick {
  LiteralHints hints;
  int PencilmarkMode = 2;
  bool AssignmentPending = false;

  std::string textHint;
  std::string buttonCaption = "Hint";
  std::array<bool, 9> redRows{};
  std::array<bool, 9> redColumns{};
  std::vector<int> sounds;

  void CommandHint_Click();

 private:
  void RevealAssignment();
  bool WrongDigit();
  bool LostCandidate();
  bool StaleCandidate();
  bool Ladder();
  void SayHiddenSingle();
  void SayBoxLine();
  bool Subset(bool naked, int size, const std::string& name);
  void SayXWing();
  void SaySwordFish();
  void Special();
  void RedCell(int cell);
};

// "A1" to "J9", without the letter I.
std::string NameOf(int cell);

}  // namespace tessel::literal
