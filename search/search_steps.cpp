// The loop of the search and its steps: choosing a cell, placing, undoing.
#include <cstring>

#include "search/exact_cover_search.h"

namespace tessel {

namespace {

constexpr std::int16_t kYes = -1;
constexpr std::int16_t kNo = 0;

// Swaps the cells at positions a and b. The cell that comes to b is about to be filled and needs no
// rank.
void Exchange(SearchLevel& level, int a, int b) {
  const std::int16_t cell = level.Order[b];
  level.Order[b] = level.Order[a];
  level.Order[a] = cell;
  level.Rank[cell] = RankAt(a, cell);
}

}  // namespace

SearchEnd ExactCoverSearch::Run(SearchDriver& driver) {
  while (true) {
    ++iterations_;
    // Step 1. Leave an exhausted level, and the singles beneath it, for the older trial level.
    if (Pos() > levelStart_[Depth]) {
      if (Depth == 0) return SearchEnd::kExhausted;
      Depth = static_cast<std::int16_t>(Depth - 2);
      ++Pos();
      continue;
    }
    // Step 2. Every cell is filled.
    if (Pos() == -1) {
      if (!driver.ContinueAfterSolution()) return SearchEnd::kSolved;
      Pos() = 0;
      continue;
    }
    // Step 3. Let the driver look around.
    if (!driver.Proceed()) return SearchEnd::kStopped;
    Step(driver);
  }
}

void ExactCoverSearch::Step(SearchDriver& driver) {
  // Step 4. A cell that holds a digit is visited again.
  const SearchLevel& level = Levels[Depth];
  const bool revisit = level.Digit[level.Order[Pos()]] != 0;
  if (!revisit) ChooseCell();
  const std::optional<Outlook> outlook = revisit ? TryNextDigit() : TryFirstDigit();
  if (!outlook) {
    ++Pos();
    return;
  }
  if (driver.FollowsPlacements()) driver.TrialPlaced(Pos(), level.Order[Pos()]);
  --Pos();
  // Step 9. A dead end sends the search back to the cell just placed.
  if (outlook->DeadEnd()) {
    ++Pos();
  } else if (outlook->Single()) {
    PropagateSingles(driver, *outlook);
  }
}

// Step 5. The first cell met with the fewest candidates comes to the current position; every cell
// that led on the way swaps places with its successor.
void ExactCoverSearch::ChooseCell() {
  SearchLevel& level = Levels[Depth];
  const int pos = Pos();
  int fewest = state_.BitCount[level.Candidates[level.Order[pos]]];
  // Two are the fewest there are: singles are placed, dead ends are left.
  for (int i = 0; i < pos && fewest > 2; ++i) {
    const int count = state_.BitCount[level.Candidates[level.Order[i]]];
    if (count >= fewest) continue;
    fewest = count;
    Exchange(level, i, pos);
  }
}

// Steps 6 and 7.
Outlook ExactCoverSearch::TryFirstDigit() {
  SearchLevel& level = Levels[Depth];
  const int cell = level.Order[Pos()];
  if (state_.BitCount[level.Candidates[cell]] == 1) level.LastChoice[cell] = kYes;
  return PlaceTrial(cell, LowestDigitOf(level.Candidates[cell]));
}

// Step 8. None when the cell's digits are used up; it is empty again then, unless its level is
// dropped next.
std::optional<Outlook> ExactCoverSearch::TryNextDigit() {
  SearchLevel& level = Levels[Depth];
  const int cell = level.Order[Pos()];
  if (level.LastChoice[cell] == kYes) {
    // Nobody sees what is left in a level that is dropped next.
    if (Pos() == levelStart_[Depth] && Depth > 0) return std::nullopt;
    DLXUndo();
    level.LastChoice[cell] = kNo;
    return std::nullopt;
  }
  const int tried = level.Digit[cell];
  const auto higher = static_cast<Mask>(level.Candidates[cell] >> tried);
  level.LastChoice[cell] = (higher & (higher - 1)) != 0 ? kNo : kYes;
  return ReplaceTrial(cell, tried + LowestDigitOf(higher));
}

// Step 10. There is a single to be placed. A contradiction drops the singles and goes back to the
// cell placed last.
void ExactCoverSearch::PropagateSingles(SearchDriver& driver, Outlook outlook) {
  const std::int16_t depth = Depth;
  outlook = driver.FollowsPlacements() ? PlaceSinglesOneByOne(driver, outlook)
                                       : PlaceSinglesAtOnce(outlook);
  if (outlook.DeadEnd()) {
    Depth = depth;
    ++Pos();
    return;
  }
  OpenLevel();
  levelStart_[Depth] = Pos();
}

Outlook ExactCoverSearch::PlaceSinglesOneByOne(SearchDriver& driver, Outlook outlook) {
  OpenLevel();
  while (outlook.Single()) {
    outlook = PlaceSingles(Top(), lanes_, outlook, Pos(), 1, run_);
    TakeSingles();
    driver.SinglePlaced(Pos(), Top().Order[Pos() + 1]);
  }
  return outlook;
}

// Opens no level for singles that come to a dead end.
Outlook ExactCoverSearch::PlaceSinglesAtOnce(Outlook outlook) {
  outlook = PlaceSingles(Top(), lanes_, outlook, Pos(), kCellCount, run_);
  if (outlook.DeadEnd()) return outlook;
  OpenLevel();
  TakeSingles();
  return outlook;
}

// The singles of the run take their places in the top level.
void ExactCoverSearch::TakeSingles() {
  WriteSingles(run_, Pos(), Levels[Depth]);
  Pos() = static_cast<std::int16_t>(Pos() - run_.count);
}

// The new level carries on the log of the level below it, so that the log is one stack along the
// current path.
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

Outlook ExactCoverSearch::PlaceTrial(int cell, int digit) {
  SearchLevel& level = Levels[Depth];
  const int u = ++level.UndoCount;
  level.UndoCell[u] = static_cast<std::int16_t>(cell);
  level.UndoDigit[u] = static_cast<std::int16_t>(digit);
  level.Digit[cell] = static_cast<std::int16_t>(digit);
  return TakeForTrial(level, lanes_, cell, BitOf(digit), u);
}

// DLXUndo and PlaceTrial in one: the newest entry of the log is the cell's.
Outlook ExactCoverSearch::ReplaceTrial(int cell, int digit) {
  SearchLevel& level = Levels[Depth];
  const int u = level.UndoCount;
  const Mask before = BitOf(level.UndoDigit[u]);
  level.UndoDigit[u] = static_cast<std::int16_t>(digit);
  level.Digit[cell] = static_cast<std::int16_t>(digit);
  return TakeForNextTrial(level, lanes_, cell, before, BitOf(digit), u);
}

void ExactCoverSearch::DLXUndo() {
  SearchLevel& level = Levels[Depth];
  const int u = level.UndoCount;
  const int cell = level.UndoCell[u];
  level.Digit[cell] = 0;
  GiveBack(level, lanes_, cell, RankAt(Pos(), cell), BitOf(level.UndoDigit[u]), u);
  --level.UndoCount;
}

}  // namespace tessel
