#include "hints/mistakes.h"

#include "core/names.h"

namespace tessel {

namespace {

template <typename Predicate>
std::optional<int> LowestCell(Predicate isMistaken) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (isMistaken(cell)) return cell;
  }
  return std::nullopt;
}

bool AnyHolds(CellSet cells, const MaskBoard& candidates, int digit) {
  bool any = false;
  ForEach(cells, [&](int cell) { any = any || Holds(candidates[cell], digit); });
  return any;
}

constexpr char kClickThatCell[] = " - Click that cell with the middle button";

}  // namespace

std::optional<int> FindWrongDigit(const Grid& digits, const Grid& solution) {
  return LowestCell([&](int cell) { return digits[cell] != 0 && digits[cell] != solution[cell]; });
}

std::string WrongDigitSentence(int cell, int digit) {
  return "Incorrect number " + std::to_string(digit) + " at cell " + CellName(cell) +
         kClickThatCell;
}

std::optional<int> FindLostCandidate(const MarkedBoard& board, const Grid& solution) {
  return LowestCell([&](int cell) {
    return board.digits[cell] == 0 && !Holds(board.candidates[cell], solution[cell]);
  });
}

std::string LostCandidateSentence(int cell) {
  return "The correct number is no longer shown as a possibility at cell " + CellName(cell) +
         kClickThatCell;
}

std::optional<int> FindStaleCandidate(const MarkedBoard& board) {
  return LowestCell([&](int cell) {
    const int digit = board.digits[cell];
    const CellSet seen = board.layout.PeersOf(cell) | CellSet::Of(cell);
    return digit != 0 && AnyHolds(seen, board.candidates, digit);
  });
}

// Deliberate: "cannot longer be".
std::string StaleCandidateSentence(int cell, int digit) {
  return "Since number " + std::to_string(digit) + " is located at cell " + CellName(cell) +
         ", this number cannot longer be a candidate in that same row, column or cage";
}

}  // namespace tessel
