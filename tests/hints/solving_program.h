// The whole program in solving mode, where a test can put a board of its own before the player.
#pragma once

#include <string>
#include <vector>

#include "tests/fakes/test_program.h"
#include "tests/hints/recorded_boards.h"

namespace tessel {

struct SolvingProgram : TestProgram {
  SolvingProgram();

  // Its tests put boards together by hand.
  GameState& State() { return Probe(); }

  // Restarts with another puzzle; the candidates are those that its givens leave.
  void Play(const PuzzleRecord& puzzle);
  void Play(const RecordedBoard& board);
  void SetMarks(const MaskBoard& marks) { State().Candidates = marks; }

  // Presses the button and says what it wrote. `sounds` holds the sounds of this press alone.
  std::string Hint();

  // The red captions, "AC 5" or "- 5"; every other caption must be black.
  std::string Red() const;
  const std::string& ButtonCaption() const { return Display().Of(Button::CommandHint).caption; }

  std::vector<int> sounds;
};

// A solved regular puzzle, the same in every test: row A reads 1..9.
PuzzleRecord SolvedPuzzle();
// The same without any digit on the board.
PuzzleRecord EmptyPuzzle();

}  // namespace tessel
