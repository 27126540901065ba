#include "tests/e2e/expected_game.h"

#include <algorithm>
#include <stdexcept>

namespace tessel {

ExpectedGame::ExpectedGame(const PuzzleRecord& puzzle) : puzzle_(puzzle) {
  Restart();
}

void ExpectedGame::Restart() {
  for (auto& marks : marks_) marks.fill(true);
  for (int cell = 0; cell < kCellCount; ++cell) {
    digits_[cell] = puzzle_.Board[cell];
    if (digits_[cell] == 0) continue;
    marks_[cell].fill(false);
    RemoveFromPeers(cell, digits_[cell]);
  }
}

void ExpectedGame::Place(int cell, int digit) {
  digits_[cell] = digit;
  marksBeforeEntry_[cell] = marks_[cell];
  marks_[cell].fill(false);
  RemoveFromPeers(cell, digit);
}

void ExpectedGame::RightClick(int cell, int digit) {
  if (digits_[cell] != 0) {
    digits_[cell] = 0;
    marks_[cell] = marksBeforeEntry_[cell];
  } else if (updates_) {
    marks_[cell][digit - 1] = !marks_[cell][digit - 1];
  }
}

void ExpectedGame::Reset(int cell) {
  if (!updates_) return;
  digits_[cell] = 0;
  marks_[cell].fill(true);
}

bool ExpectedGame::ShowsMark(int cell, int digit) const {
  return digits_[cell] == 0 && (!updates_ || marks_[cell][digit - 1]);
}

bool ExpectedGame::Full() const {
  return std::none_of(digits_.begin(), digits_.end(), [](int digit) { return digit == 0; });
}

Mark ExpectedGame::FindMark(bool shown, bool right) const {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (Digit(cell) != 0) continue;
    for (int digit = 1; digit <= kSide; ++digit) {
      if (ShowsMark(cell, digit) == shown && (Solution(cell) == digit) == right) {
        return {cell, digit};
      }
    }
  }
  throw std::runtime_error("no such mark on the board");
}

int ExpectedGame::FindGiven() const {
  int cell = 0;
  while (Given(cell) == 0) ++cell;
  return cell;
}

bool ExpectedGame::SeeEachOther(int cell, int other) const {
  return cell / 9 == other / 9 || cell % 9 == other % 9 ||
         puzzle_.CageMap[cell] == puzzle_.CageMap[other];
}

void ExpectedGame::RemoveFromPeers(int cell, int digit) {
  for (int other = 0; other < kCellCount; ++other) {
    if (SeeEachOther(cell, other)) marks_[other][digit - 1] = false;
  }
}

}  // namespace tessel
