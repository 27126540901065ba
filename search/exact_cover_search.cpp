#include "search/exact_cover_search.h"

#include <cassert>
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
  Depth = 0;
  Levels.resize(1);
  levelPos_.resize(1);
  levelStart_.resize(1);
  Levels[0].UndoCount = 0;
  Levels[0].LastChoice.fill(kNo);
  Levels[0].Candidates.fill(kAllCandidates);
}

void ExactCoverSearch::StartEmpty(const PerCell<std::int16_t>& order) {
  Reset();
  Levels[0].Digit.fill(0);
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
  if (level.Digit[level.Order[Pos()]] == 0) {
    ChooseCell();
    TryFirstDigit();
  } else if (!TryNextDigit()) {
    ++Pos();
    return;
  }
  driver.TrialPlaced(Pos(), level.Order[Pos()]);
  --Pos();
  // Step 9. A dead end sends the search back to the cell just placed.
  if (Pos() >= 0 && LookAhead().deadEnd) {
    ++Pos();
    return;
  }
  PropagateSingles(driver);
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
  }
}

// Steps 6 and 7.
void ExactCoverSearch::TryFirstDigit() {
  SearchLevel& level = Levels[Depth];
  const int cell = level.Order[Pos()];
  int digit = 1;
  while (!Holds(level.Candidates[cell], digit)) ++digit;
  level.Digit[cell] = static_cast<std::int16_t>(digit);
  if (state_.BitCount[level.Candidates[cell]] == 1) level.LastChoice[cell] = kYes;
  DLXRemoveCandidates(cell, digit, Pos() - 1);
}

// Step 8. False when the cell's digits are used up; it is empty again then.
bool ExactCoverSearch::TryNextDigit() {
  SearchLevel& level = Levels[Depth];
  const int cell = level.Order[Pos()];
  const int oldDigit = level.Digit[cell];  // taken first: undoing empties the cell
  DLXUndo();
  if (level.LastChoice[cell] == kYes) {
    level.LastChoice[cell] = kNo;
    return false;
  }
  int digit = oldDigit + 1;
  while (!Holds(level.Candidates[cell], digit)) ++digit;
  level.Digit[cell] = static_cast<std::int16_t>(digit);
  const bool higherLeft = (level.Candidates[cell] >> digit) != 0;
  level.LastChoice[cell] = higherLeft ? kNo : kYes;
  DLXRemoveCandidates(cell, digit, Pos() - 1);
  return true;
}

// Step 10. A contradiction drops the singles and goes back to the cell placed last; where no
// single was to be placed, the old level goes on.
void ExactCoverSearch::PropagateSingles(SearchDriver& driver) {
  if (Pos() < 0 || !LookAhead().single) return;
  OpenLevel();
  while (true) {
    const Outlook outlook = LookAhead();
    if (outlook.deadEnd) {
      --Depth;
      ++Pos();
      return;
    }
    if (!outlook.single || !DLXNakedSingle(Pos())) break;
    const int cell = Levels[Depth].Order[Pos()];
    --Pos();
    driver.SinglePlaced(Pos(), cell);
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
  Levels[Depth] = Levels[Depth - 1];
  levelPos_[Depth] = levelPos_[Depth - 1];
}

ExactCoverSearch::Outlook ExactCoverSearch::LookAhead() const {
  const SearchLevel& level = Levels[Depth];
  std::int16_t deadEnd = 0;
  std::int16_t single = 0;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const Mask mask = level.Candidates[cell];
    const auto unfilled = static_cast<std::int16_t>(-(level.Digit[cell] == 0));
    const auto empty = static_cast<std::int16_t>(-(mask == 0));
    const auto atMostOne = static_cast<std::int16_t>(-((mask & (mask - 1)) == 0));
    deadEnd = static_cast<std::int16_t>(deadEnd | (unfilled & empty));
    single = static_cast<std::int16_t>(single | (unfilled & atMostOne & ~empty));
  }
  return {deadEnd != 0, single != 0};
}

}  // namespace tessel
