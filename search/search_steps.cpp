// The loop of the search and its steps: choosing a cell, placing, undoing.
#include <array>
#include <cassert>
#include <cstring>

#include "search/exact_cover_search.h"

namespace tessel {

namespace {

// CandidateCount of each mask: processors of the generic build count no bits, and the choice of a
// cell does little else.
constexpr auto kCandidateCounts = [] {
  std::array<std::uint8_t, kAllCandidates + 1> counts{};
  for (int mask = 0; mask <= kAllCandidates; ++mask) {
    counts[mask] = static_cast<std::uint8_t>(CandidateCount(static_cast<Mask>(mask)));
  }
  return counts;
}();

// Swaps the cells at positions a and b. The cell that comes to b is about to be filled and needs no
// key.
void SwapPositions(SearchLevel& level, int a, int b) {
  const std::int16_t cell = level.Order[b];
  level.Order[b] = level.Order[a];
  level.Order[a] = cell;
  level.positionKey[cell] = PositionKeyAt(a, cell);
}

}  // namespace

SearchResult ExactCoverSearch::Run(SearchDriver& driver) {
  while (true) {
    ++iterations_;
    // Step 1. Leave an exhausted level, and the singles beneath it, for the older trial level.
    if (Pos() > levelStart_[Depth]) {
      if (Depth == 0) return SearchResult::kExhausted;
      Depth = static_cast<std::int16_t>(Depth - 2);
      ++Pos();
      continue;
    }
    // Step 2. Every cell is filled.
    if (Pos() == -1) {
      if (!driver.ContinueAfterSolution()) return SearchResult::kSolved;
      Pos() = 0;
      continue;
    }
    // Step 3. Let the driver look around.
    if (!driver.BeforeIteration()) return SearchResult::kStopped;
    Step(driver);
  }
}

void ExactCoverSearch::Step(SearchDriver& driver) {
  // Step 4. A cell that holds a digit is visited again.
  const SearchLevel& level = Levels[Depth];
  const bool revisit = level.Digit[level.Order[Pos()]] != 0;
  if (!revisit) ChooseCell();
  const std::optional<BoardStatus> status = revisit ? TryNextDigit() : TryFirstDigit();
  if (!status) {
    ++Pos();
    return;
  }
  if (driver.ObservesPlacements()) driver.TrialPlaced(Pos(), level.Order[Pos()]);
  --Pos();
  // Step 9. A contradiction sends the search back to the cell just placed.
  if (status->Contradiction()) {
    ++Pos();
  } else if (status->Single()) {
    PropagateSingles(driver, *status);
  }
}

// Step 5. The first cell met with the fewest candidates comes to the current position; every cell
// that led on the way swaps places with its successor.
void ExactCoverSearch::ChooseCell() {
  SearchLevel& level = Levels[Depth];
  const int pos = Pos();
  int fewest = kCandidateCounts[level.Candidates[level.Order[pos]]];
  // Two are the fewest there are: singles have been placed and contradictions left.
  for (int i = 0; i < pos && fewest > 2; ++i) {
    const int count = kCandidateCounts[level.Candidates[level.Order[i]]];
    if (count >= fewest) continue;
    fewest = count;
    SwapPositions(level, i, pos);
  }
}

// Steps 6 and 7.
BoardStatus ExactCoverSearch::TryFirstDigit() {
  SearchLevel& level = Levels[Depth];
  const int cell = level.Order[Pos()];
  if (kCandidateCounts[level.Candidates[cell]] == 1) level.LastChoice[cell] = kTrue16;
  return PlaceTrial(cell, LowestDigitOf(level.Candidates[cell]));
}

// Step 8. Nothing when the digits of the cell are used up; it is empty again then, unless its level
// is dropped next.
std::optional<BoardStatus> ExactCoverSearch::TryNextDigit() {
  SearchLevel& level = Levels[Depth];
  const int cell = level.Order[Pos()];
  if (level.LastChoice[cell] == kTrue16) {
    // Nobody sees what is left in a level that is dropped next.
    if (Pos() == levelStart_[Depth] && Depth > 0) return std::nullopt;
    DLXUndo();
    level.LastChoice[cell] = kFalse16;
    return std::nullopt;
  }
  const int tried = level.Digit[cell];
  const auto higher = static_cast<Mask>(level.Candidates[cell] >> tried);
  level.LastChoice[cell] = (higher & (higher - 1)) != 0 ? kFalse16 : kTrue16;
  return ReplaceTrial(cell, tried + LowestDigitOf(higher));
}

// Step 10. There is a single to be placed. A contradiction drops the singles and goes back to the
// cell placed last.
void ExactCoverSearch::PropagateSingles(SearchDriver& driver, BoardStatus status) {
  const std::int16_t depth = Depth;
  status = driver.ObservesPlacements() ? PlaceSinglesOneByOne(driver, status)
                                       : PlaceSinglesAtOnce(status);
  if (status.Contradiction()) {
    Depth = depth;
    ++Pos();
    return;
  }
  OpenLevel();
  levelStart_[Depth] = Pos();
}

BoardStatus ExactCoverSearch::PlaceSinglesOneByOne(SearchDriver& driver, BoardStatus status) {
  OpenLevel();
  while (status.Single()) {
    status = kernels::PropagateSingles(Top(), tables_, status, Pos(), 1, scratch_);
    CommitSingles();
    driver.SinglePlaced(Pos(), Top().Order[Pos() + 1]);
  }
  return status;
}

// Opens no level for singles that lead to a contradiction.
BoardStatus ExactCoverSearch::PlaceSinglesAtOnce(BoardStatus status) {
  status = kernels::PropagateSingles(Top(), tables_, status, Pos(), kCellCount, scratch_);
  if (status.Contradiction()) return status;
  OpenLevel();
  CommitSingles();
  return status;
}

void ExactCoverSearch::CommitSingles() {
  kernels::CommitSingles(scratch_, Pos(), Levels[Depth]);
  Pos() = static_cast<std::int16_t>(Pos() - scratch_.count);
}

// The new level carries on the undo log of the level below it, so that the log is one stack along
// the current path.
void ExactCoverSearch::OpenLevel() {
  ++Depth;
  const auto size = static_cast<std::size_t>(Depth) + 1;
  if (Levels.size() < size) {
    Levels.resize(size);
    levelPos_.resize(size);
    levelStart_.resize(size);
  }
  std::memmove(&Levels[Depth], &Levels[Depth - 1], sizeof(SearchLevel));
  levelPos_[Depth] = levelPos_[Depth - 1];
}

BoardStatus ExactCoverSearch::PlaceTrial(int cell, int digit) {
  SearchLevel& level = Levels[Depth];
  const int entry = ++level.UndoCount;
  level.UndoCell[entry] = static_cast<std::int16_t>(cell);
  level.UndoDigit[entry] = static_cast<std::int16_t>(digit);
  level.Digit[cell] = static_cast<std::int16_t>(digit);
  return kernels::PlaceTrial(level, tables_, cell, BitOf(digit), entry);
}

// DLXUndo and PlaceTrial in one; the newest undo entry must be the one of the cell.
BoardStatus ExactCoverSearch::ReplaceTrial(int cell, int digit) {
  SearchLevel& level = Levels[Depth];
  const int entry = level.UndoCount;
  assert(level.UndoCell[entry] == cell);
  const Mask oldBit = BitOf(level.UndoDigit[entry]);
  level.UndoDigit[entry] = static_cast<std::int16_t>(digit);
  level.Digit[cell] = static_cast<std::int16_t>(digit);
  return kernels::ReplaceTrial(level, tables_, cell, oldBit, BitOf(digit), entry);
}

void ExactCoverSearch::DLXUndo() {
  SearchLevel& level = Levels[Depth];
  const int entry = level.UndoCount;
  assert(entry > 0);
  const int cell = level.UndoCell[entry];
  level.Digit[cell] = 0;
  kernels::UndoTrial(level, tables_, cell, PositionKeyAt(Pos(), cell),
                     BitOf(level.UndoDigit[entry]), entry);
  --level.UndoCount;
}

}  // namespace tessel
