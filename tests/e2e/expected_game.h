// The solving mode's rules as a player knows them, written apart from the program.
#pragma once

#include <array>

#include "core/puzzle_record.h"

namespace tessel {

struct Mark {
  int cell;
  int digit;
};

class ExpectedGame {
 public:
  explicit ExpectedGame(const PuzzleRecord& puzzle);

  void Restart();
  // The left click on a mark. The mark must be shown.
  void Place(int cell, int digit);
  // The right click: takes the digit out, or toggles the mark.
  void RightClick(int cell, int digit);
  // The middle click.
  void Reset(int cell);
  void UpdatePencilmarks(bool on) { updates_ = on; }

  const PuzzleRecord& Puzzle() const { return puzzle_; }
  int Given(int cell) const { return puzzle_.Board[cell]; }
  int Solution(int cell) const { return puzzle_.Solution[cell]; }
  // What stands in the cell, 0 for nothing.
  int Digit(int cell) const { return digits_[cell]; }
  bool ShowsMark(int cell, int digit) const;
  bool Full() const;

  // The first mark of an empty cell that is shown or not, and of the right digit or not. Throws
  // when there is none.
  Mark FindMark(bool shown, bool right) const;
  int FindGiven() const;

 private:
  bool SeeEachOther(int cell, int other) const;
  void RemoveFromPeers(int cell, int digit);

  PuzzleRecord puzzle_;
  bool updates_ = true;
  std::array<int, kCellCount> digits_{};
  std::array<std::array<bool, kSide>, kCellCount> marks_{};  // [cell][digit - 1]
  std::array<std::array<bool, kSide>, kCellCount> marksBeforeEntry_{};
};

}  // namespace tessel
