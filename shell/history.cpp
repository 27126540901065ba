#include "shell/history.h"

namespace tessel {

namespace {

Difference::InCell CellOf(const Position& position, int cell) {
  return {static_cast<std::uint8_t>(cell), position.PlayBoard.Board[cell],
          position.Candidates[cell], position.CandidatesBeforeEntry[cell]};
}

// Takes the latest step of one list and leaves the way back in the other.
std::optional<Position> Step(const Position& now, std::vector<Difference>& from,
                             std::vector<Difference>& to) {
  if (from.empty()) return std::nullopt;
  const Position next = With(from.back(), now);
  from.pop_back();
  to.push_back(DifferenceTo(now, next));
  return next;
}

}  // namespace

Difference DifferenceTo(const Position& to, const Position& from) {
  Difference difference{{}, to.PencilmarkMode};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const auto wanted = CellOf(to, cell);
    if (wanted != CellOf(from, cell)) difference.cells.push_back(wanted);
  }
  return difference;
}

Difference WholeOf(const Position& position) {
  Difference whole{{}, position.PencilmarkMode};
  for (int cell = 0; cell < kCellCount; ++cell) whole.cells.push_back(CellOf(position, cell));
  return whole;
}

Position With(const Difference& difference, const Position& from) {
  Position position = from;
  position.PencilmarkMode = difference.mode;
  for (const auto& [cell, digit, candidates, candidatesBeforeEntry] : difference.cells) {
    position.PlayBoard.Board[cell] = digit;
    position.Candidates[cell] = candidates;
    position.CandidatesBeforeEntry[cell] = candidatesBeforeEntry;
  }
  return position;
}

void History::Record(const Position& now, const Position& next) {
  if (now == next) return;
  past_.push_back(DifferenceTo(now, next));
  undone_.clear();
}

std::optional<Position> History::Undo(const Position& now) {
  return Step(now, past_, undone_);
}

std::optional<Position> History::Redo(const Position& now) {
  return Step(now, undone_, past_);
}

}  // namespace tessel
