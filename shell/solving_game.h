// The rules of the solving mode: moves that lead from one position to the next.
#pragma once

#include <optional>

#include "core/cell_click.h"
#include "core/layout.h"
#include "core/position.h"
#include "core/sounds.h"

namespace tessel {

// What a move leads to, and the sound that goes with it.
struct Move {
  Position position;
  Sound sound;
};

// Cells are 0..80, digits 1..9. A move that is refused returns nothing: the position stays and
// nothing is heard.
class SolvingGame {
 public:
  // `puzzle` says which cells are givens and what Restart opens, `layout` who is whose peer.
  // Neither need be that of the position: the generation may replace them while a game goes on, and
  // its moves go by the new ones from then on.
  SolvingGame(const Layout& layout, const PuzzleRecord& puzzle)
      : layout_(layout), puzzle_(puzzle) {}

  bool IsGiven(int cell) const { return puzzle_.Board[cell] != 0; }

  // What the mouse button does on the mark of `digit`; givens refuse everything.
  std::optional<Move> Click(const Position& from, int cell, MouseButton button, int digit) const;

  // Only a digit whose mark is shown can be placed. It leaves the candidates of all peers.
  std::optional<Move> Place(const Position& from, int cell, int digit) const;
  // Gives the cell its old candidates back, but not its peers what the entry took from them.
  std::optional<Move> TakeOut(const Position& from, int cell) const;
  // Refused where marks are not updated.
  std::optional<Move> ToggleMark(const Position& from, int cell, int digit) const;
  // Empties the cell and gives it all nine candidates, even those that a peer's digit excludes.
  // Refused where marks are not updated.
  std::optional<Move> ResetCell(const Position& from, int cell) const;

  // The puzzle's first position. The way in which marks are kept stays.
  Move Restart(const Position& from) const;
  // The solution of the opened puzzle on the board; the candidates stay.
  Move Solution(const Position& from) const;

 private:
  void PlaceDigit(Position& position, int cell, int digit) const;

  Layout layout_;
  PuzzleRecord puzzle_;
};

// Whether every cell holds a digit, right or wrong.
bool IsFull(const Position& position);

}  // namespace tessel
