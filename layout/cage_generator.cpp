#include "layout/cage_generator.h"

#include <utility>

namespace tessel {

namespace {

constexpr int kMostFailures = 50;  // counted failures of one step that abandon the layout
constexpr int kCentreCage = 5;
constexpr int kRotationalCagesToGrow = 4;

// Cage 4 may not touch the centre on perpendicular sides: the centre cage could not leave it.
constexpr CellSet kAboveAndBelowCentre = CellSet::Of(31) | CellSet::Of(49);
constexpr CellSet kLeftAndRightOfCentre = CellSet::Of(39) | CellSet::Of(41);

CellSet CellsOfCage(const GameState& state, int cage) {
  CellSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (state.CageOfCell[cell] == cage) cells = cells | CellSet::Of(cell);
  }
  return cells;
}

CellSet Unclaimed(const GameState& state) {
  return CellsOfCage(state, 0);
}

}  // namespace

CageGenerator::CageGenerator(GameState& state, Form& form, View& view, RandomSource& random,
                             Clock& clock, AcceptLayout accept)
    : state_(state),
      form_(form),
      view_(view),
      random_(random),
      clock_(clock),
      accept_(std::move(accept)) {}

void CageGenerator::BuildTesselPattern() {
  random_.Seed(clock_.Seed());
  while (!Attempt()) {
  }
  for (int cell = 0; cell < kCellCount; ++cell) Paint(cell);
  view_.Beep();
}

void CageGenerator::BuildRegularLayout() {
  for (int cell = 0; cell < kCellCount; ++cell) {
    state_.CageOfCell[cell] =
        static_cast<std::int16_t>(1 + 3 * (RowOf(cell) / 3) + ColumnOf(cell) / 3);
  }
  RebuildCageCells(state_);
  for (int cell = 0; cell < kCellCount; ++cell) Paint(cell);
}

bool CageGenerator::Attempt() {
  state_.CageOfCell.fill(0);
  for (int cell = 0; cell < kCellCount; ++cell) form_.SetCellOpaque(cell, false);
  rotational_ = form_.Checked(CheckBox::Rotational);
  const int cagesToGrow = rotational_ ? kRotationalCagesToGrow : kSide;
  for (Cage = 1; Cage <= cagesToGrow; ++Cage) {
    if (!GrowCage() || (rotational_ && !MirrorCage())) return false;
  }
  if (rotational_ && !GrowCentreCage()) return false;
  RebuildCageCells(state_);
  return accept_();
}

bool CageGenerator::GrowCage() {
  CurrentCell = Unclaimed(state_).First();
  Claim(CurrentCell, Cage);
  GrowthList[0] = CurrentCell;
  PaintProgress(CurrentCell);
  for (int k = 1; k < kSide; ++k) {
    if (IsEnclosed() || !ClaimNextCell(k)) return false;
    GrowthList[k] = CurrentCell;
    PaintProgress(CurrentCell);
  }
  return true;
}

// Walks until the cage's cell number k (1..8) is claimed, or too many claims had to be given back.
bool CageGenerator::ClaimNextCell(int k) {
  int failCount = 0;
  while (failCount < kMostFailures) {
    view_.PumpEvents();
    const std::optional<int> next = DrawNeighbour();
    if (!next) continue;
    if (rotational_ && *next == kCentreCell) {
      ++failCount;
      continue;
    }
    if (state_.CageOfCell[*next] == Cage) CurrentCell = *next;
    if (state_.CageOfCell[*next] != 0) continue;
    Claim(*next, Cage);
    if (MayStand(*next, kSide - 1 - k)) {
      CurrentCell = *next;
      return true;
    }
    ++failCount;
    Claim(*next, 0);
  }
  return false;
}

bool CageGenerator::MayStand(int cell, int cellsToCover) const {
  if (!OpenField(cellsToCover, rotational_ ? 2 * Cage - 1 : Cage, cell)) return false;
  if (!rotational_ || Cage != kRotationalCagesToGrow) return true;
  const CellSet cage = CellsOfCage(state_, Cage);
  if (kAboveAndBelowCentre.Contains(cell)) return (cage & kLeftAndRightOfCentre).Empty();
  if (kLeftAndRightOfCentre.Contains(cell)) return (cage & kAboveAndBelowCentre).Empty();
  return true;
}

bool CageGenerator::MirrorCage() {
  bool conflict = false;
  for (const int cell : GrowthList) {
    const int mirror = HalfTurnOf(cell);
    if (state_.CageOfCell[mirror] != 0) {
      conflict = true;
      continue;
    }
    Claim(mirror, kSide + 1 - Cage);
    PaintProgress(mirror);
  }
  return !conflict;
}

bool CageGenerator::GrowCentreCage() {
  Cage = kCentreCage;
  CurrentCell = kCentreCell;
  Claim(CurrentCell, Cage);
  for (int k = 1; k < kSide; ++k) {
    if (!ClaimNextCentreCell()) return false;
  }
  return true;
}

// The centre cage takes what is left: no look-ahead, no painting, and other cages count as
// failures.
bool CageGenerator::ClaimNextCentreCell() {
  int failCount = 0;
  while (failCount < kMostFailures) {
    view_.PumpEvents();
    const std::optional<int> next = DrawNeighbour();
    if (!next) continue;
    const int cage = state_.CageOfCell[*next];
    if (cage != 0 && cage != Cage) {
      ++failCount;
      continue;
    }
    CurrentCell = *next;
    if (cage == Cage) continue;
    Claim(CurrentCell, Cage);
    return true;
  }
  return false;
}

// A cage that touches no unclaimed cell could never claim one nor count a failure: the walk would
// not end. Happens in rotational layouts, in pockets that cages and their mirrors have closed off.
bool CageGenerator::IsEnclosed() const {
  return (NeighboursOf(CellsOfCage(state_, Cage)) & Unclaimed(state_)).Empty();
}

// The cell to the right, below, to the left or above; none when that would leave the board.
std::optional<int> CageGenerator::DrawNeighbour() {
  switch (DrawIndex(random_, 4) + 1) {
    case 1:
      if (ColumnOf(CurrentCell) == kSide - 1) return std::nullopt;
      return CurrentCell + 1;
    case 2:
      if (RowOf(CurrentCell) == kSide - 1) return std::nullopt;
      return CurrentCell + kSide;
    case 3:
      if (ColumnOf(CurrentCell) == 0) return std::nullopt;
      return CurrentCell - 1;
    default:
      if (RowOf(CurrentCell) == 0) return std::nullopt;
      return CurrentCell - kSide;
  }
}

// The look-ahead goes no further than two regions and remainders by nine, on purpose: it does not
// ask whether the cage touches the region that it must finish in, nor about mirrors to come.
bool CageGenerator::OpenField(int CellsToCover, int CurrentCage, int /*LastAddedCell*/) const {
  const int empty = (kSide - CurrentCage) * kSide + CellsToCover;
  if (empty == 0) return true;
  const CellSet unclaimed = Unclaimed(state_);
  const CellSet first = FirstRegionOf(unclaimed);
  const int size1 = first.Count();
  if (size1 == empty) return true;
  const int size2 = FirstRegionOf(unclaimed - first).Count();
  if (size1 + size2 != empty) return false;
  return size1 % kSide <= CellsToCover || size2 % kSide <= CellsToCover;
}

void CageGenerator::Claim(int cell, int cage) {
  state_.CageOfCell[cell] = static_cast<std::int16_t>(cage);
}

void CageGenerator::PaintProgress(int cell) {
  if (form_.Checked(CheckBox::CheckVisualize)) Paint(cell);
}

void CageGenerator::Paint(int cell) {
  form_.SetCellOpaque(cell, true);
  form_.SetCellBackground(cell, CageColourOf(state_, cell));
}

}  // namespace tessel
