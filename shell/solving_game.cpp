#include "shell/solving_game.h"

#include <algorithm>

namespace tessel {

std::optional<Move> SolvingGame::Click(const Position& from, int cell, MouseButton button,
                                       int digit) const {
  if (IsGiven(cell)) return std::nullopt;
  switch (button) {
    case MouseButton::kLeft:
      return Place(from, cell, digit);
    case MouseButton::kRight:
      return from.PlayBoard.Board[cell] != 0 ? TakeOut(from, cell) : ToggleMark(from, cell, digit);
    case MouseButton::kMiddle:
      return ResetCell(from, cell);
  }
  return std::nullopt;
}

std::optional<Move> SolvingGame::Place(const Position& from, int cell, int digit) const {
  if (!Holds(ShownMarks(from, cell), digit)) return std::nullopt;
  Move move{from, Sound::kEntry};
  move.position.CandidatesBeforeEntry[cell] = from.Candidates[cell];
  PlaceDigit(move.position, cell, digit);
  return move;
}

std::optional<Move> SolvingGame::TakeOut(const Position& from, int cell) const {
  if (from.PlayBoard.Board[cell] == 0) return std::nullopt;
  Move move{from, Sound::kPatch};
  move.position.PlayBoard.Board[cell] = 0;
  move.position.Candidates[cell] = from.CandidatesBeforeEntry[cell];
  return move;
}

std::optional<Move> SolvingGame::ToggleMark(const Position& from, int cell, int digit) const {
  if (from.PencilmarkMode == MarkMode::kNotUpdated) return std::nullopt;
  if (from.PlayBoard.Board[cell] != 0) return std::nullopt;
  const Mask mask = from.Candidates[cell];
  Move move{from, Holds(mask, digit) ? Sound::kPatch : Sound::kMarkAdded};
  move.position.Candidates[cell] = static_cast<Mask>(mask ^ BitOf(digit));
  return move;
}

std::optional<Move> SolvingGame::ResetCell(const Position& from, int cell) const {
  if (from.PencilmarkMode == MarkMode::kNotUpdated) return std::nullopt;
  Move move{from, Sound::kBoink};
  move.position.PlayBoard.Board[cell] = 0;
  move.position.Candidates[cell] = kAllCandidates;
  return move;
}

Move SolvingGame::Restart(const Position& from) const {
  Move move{from, Sound::kPatch};
  move.position.PlayBoard = puzzle_;
  move.position.Candidates.fill(kAllCandidates);
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (IsGiven(cell)) PlaceDigit(move.position, cell, puzzle_.Board[cell]);
  }
  return move;
}

Move SolvingGame::Solution(const Position& from) const {
  Move move{from, Sound::kBlaster};
  move.position.PlayBoard.Board = from.PlayBoard.Solution;
  return move;
}

void SolvingGame::PlaceDigit(Position& position, int cell, int digit) const {
  position.PlayBoard.Board[cell] = static_cast<std::uint8_t>(digit);
  position.Candidates[cell] = 0;
  ForEach(layout_.PeersOf(cell), [&](int peer) {
    position.Candidates[peer] = Without(position.Candidates[peer], BitOf(digit));
  });
}

bool IsFull(const Position& position) {
  return std::ranges::count(position.PlayBoard.Board, 0) == 0;
}

}  // namespace tessel
