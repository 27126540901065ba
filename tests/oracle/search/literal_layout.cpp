#include "tests/oracle/search/literal_layout.h"

namespace tessel::oracle {

namespace {

constexpr int kFailLimit = 50;
constexpr int kCentre = 40;
constexpr std::array<int, 5> kMove{0, 1, 9, -1, -9};  // by direction: right, down, left, up

bool CrossesEdge(int cell, int direction) {
  switch (direction) {
    case 1:
      return cell % 9 == 8;
    case 2:
      return cell / 9 == 8;
    case 3:
      return cell % 9 == 0;
    default:
      return cell / 9 == 0;
  }
}

// Whether a neighbour of `cell` (right, down, left, up) has this number in `cages`.
bool Touches(const Grid& cages, int cell, int number) {
  for (int direction = 1; direction <= 4; ++direction) {
    if (!CrossesEdge(cell, direction) && cages[cell + kMove[direction]] == number) return true;
  }
  return false;
}

}  // namespace

Layout LiteralLayout::BuildTesselPattern(Mode mode) {
  mode_ = mode;
  while (true) {
    ++attempts;
    Attempt();
    if (Direction != 0) continue;
    const Layout layout = LayoutOf(CageOfCell);
    if (!accept || accept(layout)) return layout;
  }
}

void LiteralLayout::Attempt() {
  CageOfCell.fill(0);
  FailCount = 0;
  const int cagesToGrow = mode_ == Mode::kRotational ? 4 : 9;
  for (Cage = 1; Cage <= cagesToGrow; ++Cage) {
    GrowCage();
    if (FailCount == kFailLimit) break;
    if (mode_ == Mode::kRotational) MirrorCage();
    if (FailCount == kFailLimit) break;
  }
  if (Direction == 0 && mode_ == Mode::kRotational) GrowCentreCage();
}

void LiteralLayout::GrowCage() {
  CurrentCell = LowestUnclaimed();
  CageOfCell[CurrentCell] = static_cast<std::int16_t>(Cage);
  GrowthList[0] = CurrentCell;
  for (int k = 1; k <= 8; ++k) {
    if (Enclosed()) {
      ++enclosed;
      FailCount = kFailLimit;
      Direction = 1;
      return;
    }
    do {
      Step(k);
    } while (Direction != 0 && FailCount < kFailLimit);
    if (FailCount == kFailLimit) return;
  }
}

void LiteralLayout::Step(int k) {
  ++steps;
  Direction = DrawIndex(random_, 4) + 1;
  if (LeavesBoard()) return;
  const int n = Neighbour();
  const bool rotational = mode_ == Mode::kRotational;
  if (rotational && n == kCentre) {
    ++FailCount;
    return;
  }
  if (CageOfCell[n] == Cage) CurrentCell = n;
  if (CageOfCell[n] != 0) return;

  const int from = CurrentCell;
  CageOfCell[n] = static_cast<std::int16_t>(Cage);
  CurrentCell = n;
  const bool stands = OpenField(8 - k, rotational ? 2 * Cage - 1 : Cage, n) &&
                      !(rotational && Cage == 4 && CageFourRuleRefuses(n));
  if (stands) {
    GrowthList[k] = n;
    FailCount = 0;
    Direction = 0;
  } else {
    ++FailCount;
    CageOfCell[n] = 0;
    CurrentCell = from;
  }
}

bool LiteralLayout::LeavesBoard() const {
  return CrossesEdge(CurrentCell, Direction);
}

int LiteralLayout::Neighbour() const {
  return CurrentCell + kMove[Direction];
}

bool LiteralLayout::CageFourRuleRefuses(int n) const {
  const bool vertical = n == 31 || n == 49;
  const bool horizontal = n == 39 || n == 41;
  return (vertical && (CageOfCell[39] == 4 || CageOfCell[41] == 4)) ||
         (horizontal && (CageOfCell[31] == 4 || CageOfCell[49] == 4));
}

bool LiteralLayout::Enclosed() const {
  for (int cell = 0; cell < 81; ++cell) {
    if (CageOfCell[cell] == Cage && Touches(CageOfCell, cell, 0)) return false;
  }
  return true;
}

// Goes on after a conflict: the attempt has failed all the same.
void LiteralLayout::MirrorCage() {
  for (const int cell : GrowthList) {
    const int m = 80 - cell;
    if (CageOfCell[m] != 0) {
      FailCount = kFailLimit;
      Direction = 1;
    } else {
      CageOfCell[m] = static_cast<std::int16_t>(10 - Cage);
    }
  }
}

void LiteralLayout::GrowCentreCage() {
  CurrentCell = kCentre;
  CageOfCell[kCentre] = 5;
  for (int k = 1; k <= 8 && FailCount < kFailLimit; ++k) {
    do {
      CentreStep();
    } while (Direction != 0 && FailCount < kFailLimit);
  }
}

void LiteralLayout::CentreStep() {
  ++steps;
  Direction = DrawIndex(random_, 4) + 1;
  if (LeavesBoard()) return;
  const int n = Neighbour();
  if (CageOfCell[n] == 5) {
    CurrentCell = n;
  } else if (CageOfCell[n] != 0) {
    ++FailCount;
  } else {
    CageOfCell[n] = 5;
    CurrentCell = n;
    FailCount = 0;
    Direction = 0;
  }
}

bool LiteralLayout::OpenField(int CellsToCover, int CurrentCage, int /*LastAddedCell*/) {
  bool result = true;
  const int empty = (9 - CurrentCage) * 9 + CellsToCover;
  if (empty == 0) return true;
  const int size1 = FloodFill(10);
  if (size1 != empty) {
    const int size2 = FloodFill(11);
    if (size1 + size2 != empty) result = false;
    if (size1 + size2 == empty) {
      result = !(size1 % 9 > CellsToCover && size2 % 9 > CellsToCover);
    }
  }
  ClearMarks();
  return result;
}

int LiteralLayout::LowestUnclaimed() const {
  int cell = 0;
  while (CageOfCell[cell] != 0) ++cell;
  return cell;
}

int LiteralLayout::FloodFill(std::int16_t mark) {
  CageOfCell[LowestUnclaimed()] = mark;
  int size = 1;
  while (MarkNextCell(mark)) ++size;
  return size;
}

// One pass over the board, which adds one cell.
bool LiteralLayout::MarkNextCell(std::int16_t mark) {
  for (int cell = 0; cell < 81; ++cell) {
    if (CageOfCell[cell] == 0 && Touches(CageOfCell, cell, mark)) {
      CageOfCell[cell] = mark;
      return true;
    }
  }
  return false;
}

void LiteralLayout::ClearMarks() {
  for (std::int16_t& cage : CageOfCell) {
    if (cage >= 10) cage = 0;
  }
}

}  // namespace tessel::oracle
