// A game as its player has it before them, with the steps that lead back and forth.
#pragma once

#include <vector>

#include "core/position.h"
#include "tests/fakes/test_program.h"

namespace tessel {

struct GameAtHand {
  PuzzleRecord puzzle;
  Position position;
  std::vector<int> digits;    // as the cells show them
  std::vector<bool> marks;    // of each cell, by digit
  bool updatesMarks = false;  // the tick in the box
  // No more than the game file holds, the nearest first.
  std::vector<Position> back;
  std::vector<Position> forth;

  friend bool operator==(const GameAtHand&, const GameAtHand&) = default;
};

// Goes back and forth in the program, and leaves it where it was.
GameAtHand WalkedThrough(Tessel_Main& main);

}  // namespace tessel
