// The boards of boards.txt: found by search, one or more for every hint that the ladder can give.
#pragma once

#include <string>
#include <vector>

#include "core/game_state.h"

namespace tessel {

struct RecordedBoard {
  std::string purpose;  // "kind 8 naked pair"
  PuzzleRecord puzzle;
  MaskBoard marks{};
  std::string red;  // row letters and column digits of the red captions, "-" for none: "A 5"
  int sound = 0;
  std::string text;
};

// Throws when the file cannot be read or is broken.
std::vector<RecordedBoard> ReadRecordedBoards();

}  // namespace tessel
