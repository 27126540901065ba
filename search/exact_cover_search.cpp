#include "search/exact_cover_search.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tessel {

namespace {

constexpr std::int16_t kYes = -1;
constexpr std::int16_t kNo = 0;
constexpr int kLastPosition = kCellCount - 1;

}  // namespace

void SearchDriver::TrialPlaced(int /*pos*/, int /*cell*/) {}
void SearchDriver::SinglePlaced(int /*pos*/, int /*cell*/) {}

ExactCoverSearch::ExactCoverSearch(GameState& state, View& view) : state_(state), view_(view) {
  Reset();
}

void ExactCoverSearch::Reset() {
  lanes_.Follow(state_);
  Depth = 0;
  Levels.resize(1);
  levelPos_.resize(1);
  levelStart_.resize(1);
  Levels[0].UndoCount = 0;
  Levels[0].Digit.fill(kBeyondTheBoard);
  Levels[0].LastChoice.fill(kNo);
  Levels[0].Candidates.fill(kAllCandidates);
}

void ExactCoverSearch::StartEmpty(const PerCell<std::int16_t>& order) {
  Reset();
  std::fill_n(Levels[0].Digit.begin(), kCellCount, std::int16_t{0});
  Levels[0].Order = order;
  levelPos_[0] = kLastPosition;
  levelStart_[0] = kLastPosition;
}

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
  driver.TrialPlaced(Pos(), level.Order[Pos()]);
  --Pos();
  // Step 9. A dead end sends the search back to the cell just placed.
  if (outlook->deadEnd) {
    ++Pos();
  } else if (outlook->single) {
    PropagateSingles(driver);
  }
}

// Step 5. The first cell met with the fewest candidates comes to the current position; every cell
// that led on the way swaps places with its successor.
void ExactCoverSearch::ChooseCell() {
  SearchLevel& level = Levels[Depth];
  const int pos = Pos();
  int fewest = state_.BitCount[level.Candidates[level.Order[pos]]];
  for (int i = 0; i < pos; ++i) {
    const int count = state_.BitCount[level.Candidates[level.Order[i]]];
    if (count >= fewest) continue;
    fewest = count;
    std::swap(level.Order[i], level.Order[pos]);
    if (fewest == 2) return;  // the fewest there are: singles are placed, dead ends are left
  }
}

// Steps 6 and 7.
Outlook ExactCoverSearch::TryFirstDigit() {
  SearchLevel& level = Levels[Depth];
  const int cell = level.Order[Pos()];
  if (state_.BitCount[level.Candidates[cell]] == 1) level.LastChoice[cell] = kYes;
  return Remove(cell, LowestDigitOf(level.Candidates[cell]), Pos() - 1);
}

// Step 8. None when the cell's digits are used up; it is empty again then.
std::optional<Outlook> ExactCoverSearch::TryNextDigit() {
  SearchLevel& level = Levels[Depth];
  const int cell = level.Order[Pos()];
  const int oldDigit = level.Digit[cell];  // taken first: undoing empties the cell
  DLXUndo();
  if (level.LastChoice[cell] == kYes) {
    level.LastChoice[cell] = kNo;
    return std::nullopt;
  }
  const auto higher = static_cast<Mask>(level.Candidates[cell] >> oldDigit);
  const int digit = oldDigit + LowestDigitOf(higher);
  const bool higherLeft = (level.Candidates[cell] >> digit) != 0;
  level.LastChoice[cell] = higherLeft ? kNo : kYes;
  return Remove(cell, digit, Pos() - 1);
}

// Step 10. There is a single to be placed. A contradiction drops the singles and goes back to the
// cell placed last.
void ExactCoverSearch::PropagateSingles(SearchDriver& driver) {
  OpenLevel();
  std::optional<Outlook> outlook;
  do {
    outlook = PlaceSingle(Pos());
    --Pos();
    driver.SinglePlaced(Pos(), Levels[Depth].Order[Pos() + 1]);
  } while (outlook->single && !outlook->deadEnd);
  if (outlook->deadEnd) {
    --Depth;
    ++Pos();
    return;
  }
  OpenLevel();
  levelStart_[Depth] = Pos();
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

}  // namespace tessel
