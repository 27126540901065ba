#include "tests/oracle/search/literal_search.h"

#include "tests/oracle/search/bits.h"

namespace tessel::oracle {

namespace {

constexpr std::int16_t kTrue = -1;

}  // namespace

LiteralSearch::LiteralSearch(const Layout& layout) : layout_(layout) {
  for (int mask = 0; mask < 512; ++mask) {
    for (int rest = mask; rest > 0; rest = (rest - rest % 2) / 2) {
      if (rest % 2 == 1) ++bitCount_[mask];
    }
  }
}

void LiteralSearch::Reset() {
  Depth = 0;
  Levels.assign(1, LiteralLevel{});
  levelPos_.assign(1, 0);
  levelStart_.assign(1, 0);
  solutions_ = 0;
}

// Levels, and the two lists beside it, may move to another place in memory.
void LiteralSearch::OpenLevel() {
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

bool LiteralSearch::SomeCellIsEmpty(int ptr) const {
  const LiteralLevel& top = Top();
  for (int i = 0; i <= ptr; ++i) {
    if (top.Candidates[top.Order[i]] == 0) return true;
  }
  return false;
}

void LiteralSearch::Pump() {
  ++pumps;
  if (onPump) onPump();
}

void LiteralSearch::Draw(Driver driver, int ptr, int cell, int mode) const {
  if (driver == Driver::kGenerate && draw) draw(ptr, cell, mode);
}

// False when the chosen cell has no candidate.
bool LiteralSearch::PlaceFirstDigit() {
  LiteralLevel& top = Top();
  const int pos = Pos();
  for (int i = 0; i <= pos; ++i) {
    if (bitCount_[top.Candidates[top.Order[i]]] < bitCount_[top.Candidates[top.Order[pos]]]) {
      std::swap(top.Order[i], top.Order[pos]);
    }
  }
  const int cell = top.Order[pos];
  int digit = 1;
  while (digit <= 9 && !HasBit(top.Candidates[cell], BitOfDigit(digit))) ++digit;
  if (digit > 9) return false;
  top.Digit[cell] = static_cast<std::int16_t>(digit);
  if (bitCount_[top.Candidates[cell]] == 1) top.LastChoice[cell] = kTrue;
  DLXRemoveCandidates(cell, digit, pos - 1);
  return true;
}

// False when the cell has had its highest candidate: it is unfilled again, and the cell decided
// before it is the next.
bool LiteralSearch::PlaceNextDigit() {
  LiteralLevel& top = Top();
  const int pos = Pos();
  const int cell = top.Order[pos];
  if (top.LastChoice[cell] != 0) {
    DLXUndo();
    top.LastChoice[cell] = 0;
    ++Pos();
    return false;
  }
  int digit = top.Digit[cell] + 1;  // read before the undoing, which empties the cell
  DLXUndo();
  while (!HasBit(top.Candidates[cell], BitOfDigit(digit))) ++digit;
  top.Digit[cell] = static_cast<std::int16_t>(digit);
  top.LastChoice[cell] = kTrue;
  for (int higher = digit + 1; higher <= 9; ++higher) {
    if (HasBit(top.Candidates[cell], BitOfDigit(higher))) top.LastChoice[cell] = 0;
  }
  DLXRemoveCandidates(cell, digit, pos - 1);
  return true;
}

void LiteralSearch::PropagateSingles(Driver driver) {
  OpenLevel();
  bool placed = false;
  while (true) {
    if (SomeCellIsEmpty(Pos())) {
      --Depth;
      ++Pos();
      return;
    }
    if (!DLXNakedSingle(Pos())) break;
    placed = true;
    --Pos();
    Draw(driver, Pos(), Top().Order[Pos() + 1], 2);
  }
  if (!placed) {
    --Depth;
    return;
  }
  OpenLevel();
  Start() = Pos();
}

LiteralSearch::Ending LiteralSearch::SearchLoop(Driver driver, long limit) {
  const long pumpsBefore = pumps;
  while (true) {
    ++iterations;
    // The top level is exhausted: it is dropped with the singles below it.
    if (Pos() > Start()) {
      if (Depth == 0) return Ending::kExhausted;
      Depth = static_cast<std::int16_t>(Depth - 2);
      ++Pos();
      continue;
    }
    // A full solution stands in the top level.
    if (Pos() == -1) {
      if (driver == Driver::kGenerate || ++solutions_ == 2) return Ending::kContent;
      Pos() = 0;
      continue;
    }
    Pump();
    if (driver == Driver::kGenerate && StopRequested) {
      StopRequested = false;
      return Ending::kStopped;
    }
    if (pumps - pumpsBefore > limit) return Ending::kLimit;
    // A cell without a digit is chosen anew; one with a digit takes its next.
    const bool revisit = Top().Digit[Top().Order[Pos()]] != 0;
    if (revisit) {
      if (!PlaceNextDigit()) continue;
    } else {
      if (!PlaceFirstDigit()) return Ending::kBrokenDown;
    }
    Draw(driver, Pos(), Top().Order[Pos()], 1);
    --Pos();
    if (SomeCellIsEmpty(Pos())) {
      ++Pos();
      continue;
    }
    PropagateSingles(driver);
  }
}

LiteralSearch::End LiteralSearch::GenerateTessel(const Grid& order, long limit) {
  Reset();
  Top().Candidates.fill(511);
  Top().Order = order;
  Pos() = 80;
  Start() = 80;
  switch (SearchLoop(Driver::kGenerate, limit)) {
    case Ending::kContent:
      return End::kSolved;
    case Ending::kStopped:
      return End::kStopped;
    case Ending::kLimit:
      return End::kLimit;
    case Ending::kExhausted:
    case Ending::kBrokenDown:  // no empty layout gets there
      break;
  }
  return End::kExhausted;
}

// Fills level 0 with the givens and lists the empty cells; the position of the last of them.
int LiteralSearch::TakeGivens(const Grid& workGrid) {
  LiteralLevel& top = Top();
  top.Candidates.fill(511);
  for (int cell = 0; cell < 81; ++cell) {
    if (workGrid[cell] > 0) top.Digit[cell] = workGrid[cell];
  }
  int pos = -1;
  for (int cell = 0; cell < 81; ++cell) {
    const int given = workGrid[cell];
    if (given <= 0) {
      top.Order[++pos] = static_cast<std::int16_t>(cell);
      continue;
    }
    top.Candidates[cell] = 0;
    const int bit = given <= 9 ? BitOfDigit(given) : 0;
    const auto& cage = layout_.cageCells[layout_.cageOfCell[cell] - 1];
    for (int i = 0; i < 9; ++i) {
      ClearBit(top.Candidates[cell / 9 * 9 + i], bit);
      ClearBit(top.Candidates[9 * i + cell % 9], bit);
      ClearBit(top.Candidates[cage[i]], bit);
    }
  }
  return pos;
}

// Whether a given is no digit or stands twice in a house.
bool LiteralSearch::Clash(const Grid& workGrid) const {
  for (int a = 0; a < 81; ++a) {
    if (workGrid[a] > 9) return true;
    if (workGrid[a] <= 0) continue;
    for (int b = 0; b < a; ++b) {
      const bool peers =
          a / 9 == b / 9 || a % 9 == b % 9 || layout_.cageOfCell[a] == layout_.cageOfCell[b];
      if (peers && workGrid[a] == workGrid[b]) return true;
    }
  }
  return false;
}

std::optional<bool> LiteralSearch::UniqueSolution(const Grid& workGrid, Repairs repairs) {
  const bool repaired = repairs == Repairs::kOn;
  Reset();
  if (repaired && Clash(workGrid)) return false;
  Pos() = static_cast<std::int16_t>(TakeGivens(workGrid));
  Start() = Pos();
  if (SomeCellIsEmpty(Pos())) return false;

  while (Pos() != -1 && DLXNakedSingle(Pos())) --Pos();
  if (Pos() == -1) return true;
  Start() = Pos();
  if (repaired && SomeCellIsEmpty(Pos())) return false;

  switch (SearchLoop(Driver::kUnique, kNoLimit)) {
    case Ending::kContent:
      return false;
    case Ending::kBrokenDown:
      return std::nullopt;
    case Ending::kExhausted:
    case Ending::kStopped:  // only GenerateTessel is stopped or limited
    case Ending::kLimit:
      break;
  }
  return solutions_ == 1;
}

}  // namespace tessel::oracle
