#include "tests/oracle/search/literal_conceal.h"

namespace tessel::oracle {

namespace {

int CellsAtOnce(LiteralConceal::Mode mode) {
  return mode == LiteralConceal::Mode::kPairs ? 2 : 1;
}

}  // namespace

std::optional<Grid> LiteralConceal::ConcealCells2ValidTessel(const Grid& solution, Mode mode) {
  mode_ = mode;
  FullGrid = WorkGrid = solution;
  Tryable.fill(true);
  ConcealedCount = KeptCount = FailStreak = 0;
  sequential = false;

  while (true) {
    ++passes;
    if (Finished() || !ChooseCell()) break;
    ConcealedCount += CellsAtOnce(mode_);
    ConcealedList[ConcealedCount] = Cell;
    WorkGrid[Cell] = 0;
    if (mode_ == Mode::kPairs) WorkGrid[80 - Cell] = 0;

    ++calls;
    const bool unique = search.UniqueSolution(WorkGrid).value();
    if (onCall) onCall(Cell, WorkGrid, unique);
    if (!unique) Refuse();
    if (unique && !sequential) FailStreak = 0;
    Rebuild();
  }
  if (StopRequested) {
    StopRequested = false;
    return std::nullopt;
  }
  return WorkGrid;
}

bool LiteralConceal::Finished() const {
  if (StopRequested) return true;
  if (mode_ == Mode::kPairs) return ConcealedCount == 58 || ConcealedCount + KeptCount > 80;
  return ConcealedCount == 57 || ConcealedCount + KeptCount == 81;
}

// False when the cells in ascending order are used up.
bool LiteralConceal::ChooseCell() {
  if (!sequential) {
    do {
      Cell = DrawIndex(random_, 81);
    } while (!Choosable(Cell));
    return true;
  }
  do {
    ++ScanPos;
  } while (ScanPos <= 80 && !Choosable(ScanPos));
  Cell = ScanPos;
  return ScanPos <= (mode_ == Mode::kPairs ? 40 : 80);
}

void LiteralConceal::Refuse() {
  Tryable[Cell] = false;
  if (mode_ == Mode::kPairs) Tryable[80 - Cell] = false;
  KeptCount += CellsAtOnce(mode_);
  ConcealedCount -= CellsAtOnce(mode_);
  ++FailStreak;
  const int threshold = mode_ == Mode::kPairs ? 41 : 61;
  if (FailStreak >= threshold && !sequential) {
    sequential = true;
    ScanPos = -1;
  }
}

void LiteralConceal::Rebuild() {
  WorkGrid = FullGrid;
  for (int n = CellsAtOnce(mode_); n <= ConcealedCount; n += CellsAtOnce(mode_)) {
    WorkGrid[ConcealedList[n]] = 0;
    if (mode_ == Mode::kPairs) WorkGrid[80 - ConcealedList[n]] = 0;
  }
}

}  // namespace tessel::oracle
