// A solving game as it stands: what a move changes. A list of positions is a history, and a
// position with the puzzle that it was played from is a game to come back to.
#pragma once

#include <cstdint>

#include "core/board.h"
#include "core/puzzle_record.h"

namespace tessel {

// How the pencil marks of the solving mode are kept.
enum class MarkMode : std::int16_t {
  kNotUpdated = 1,  // "Update Pencilmarks" unticked: every mark of an empty cell is shown
  kAutomatic = 2,   // ticked: an empty cell shows its candidates
};

struct Position {
  PuzzleRecord PlayBoard;             // the opened puzzle, with the player's digits in Board
  MaskBoard Candidates{};             // of each cell; 0 in a given and in an entry
  MaskBoard CandidatesBeforeEntry{};  // a cell's mask when the player placed a digit in it
  MarkMode PencilmarkMode = MarkMode::kAutomatic;

  friend bool operator==(const Position&, const Position&) = default;
};

// The digits whose marks the cell shows: none beside a digit, else its candidates, or all nine
// where marks are not updated.
constexpr Mask ShownMarks(const Position& position, int cell) {
  if (position.PlayBoard.Board[cell] != 0) return 0;
  return position.PencilmarkMode == MarkMode::kAutomatic ? position.Candidates[cell]
                                                         : kAllCandidates;
}

}  // namespace tessel
