#include "layout/cage_generator.h"

#include <limits>
#include <utility>

#include "layout/open_field.h"

namespace tessel {

namespace {

constexpr int kMostFailures = 50;  // counted failures of one step that abandon the layout
constexpr int kUnlimited = std::numeric_limits<int>::max();
constexpr int kCentreCage = 5;
constexpr int kRotationalCagesToGrow = 4;

// Cage 4 may not touch the centre on perpendicular sides: the centre cage could not leave it.
constexpr CellSet kAboveAndBelowCentre = CellSet::Of(31) | CellSet::Of(49);
constexpr CellSet kLeftAndRightOfCentre = CellSet::Of(39) | CellSet::Of(41);

// The cells to the right, below, to the left and above. A move that would leave the board leads
// back to the cell itself, which comes to the same as the step that ends without effect.
constexpr PerCell<std::array<std::int8_t, 4>> kNeighbours = [] {
  PerCell<std::array<std::int8_t, 4>> neighbours{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const auto move = [&](bool inside, int by) {
      return static_cast<std::int8_t>(inside ? cell + by : cell);
    };
    neighbours[cell] = {move(ColumnOf(cell) < kSide - 1, 1), move(RowOf(cell) < kSide - 1, kSide),
                        move(ColumnOf(cell) > 0, -1), move(RowOf(cell) > 0, -kSide)};
  }
  return neighbours;
}();

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
  nextDirection_ = DrawDirection();
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
  unclaimed_ = {kAllCells, {}, {}};
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
  StartCage(Cage, unclaimed_.All().First());
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
    const int next = *WalkToUnclaimed(kUnlimited);
    if (!(rotational_ && next == kCentreCell)) {
      Claim(next, Cage);
      const Regions left = unclaimed_.Without(next);
      if (MayStand(next, kSide - 1 - k, left)) {
        unclaimed_ = left;
        CurrentCell = next;
        return true;
      }
      GiveBack(next);
    }
    ++failCount;
  }
  return false;
}

bool CageGenerator::MayStand(int cell, int cellsToCover, const Regions& left) const {
  if (!OpenField(left, cellsToCover, rotational_ ? 2 * Cage - 1 : Cage, cell)) return false;
  if (!rotational_ || Cage != kRotationalCagesToGrow) return true;
  if (kAboveAndBelowCentre.Contains(cell)) return (grown_ & kLeftAndRightOfCentre).Empty();
  if (kLeftAndRightOfCentre.Contains(cell)) return (grown_ & kAboveAndBelowCentre).Empty();
  return true;
}

bool CageGenerator::MirrorCage() {
  CellSet mirrored;
  bool conflict = false;
  for (const int cell : GrowthList) {
    const int mirror = HalfTurnOf(cell);
    if (state_.CageOfCell[mirror] != 0) {
      conflict = true;
      continue;
    }
    Claim(mirror, kSide + 1 - Cage);
    mirrored = mirrored | CellSet::Of(mirror);
    PaintProgress(mirror);
  }
  if (conflict) return false;
  unclaimed_ = RegionsOf(unclaimed_.All() - mirrored);
  return true;
}

bool CageGenerator::GrowCentreCage() {
  StartCage(kCentreCage, kCentreCell);
  for (int k = 1; k < kSide; ++k) {
    if (!ClaimNextCentreCell()) return false;
  }
  return true;
}

// The centre cage takes what is left: no look-ahead, no painting, and other cages count as
// failures.
bool CageGenerator::ClaimNextCentreCell() {
  const std::optional<int> next = WalkToUnclaimed(kMostFailures);
  if (!next) return false;
  CurrentCell = *next;
  Claim(*next, Cage);
  return true;
}

// Steps within the cage until one leads to an unclaimed cell; none when so many steps have led to
// other cages. The processor cannot foresee what a step finds: so moving and counting are done
// without branches, and the direction of the next step is drawn before it is needed.
std::optional<int> CageGenerator::WalkToUnclaimed(int mostOthers) {
  int cell = CurrentCell;
  for (int others = 0; others < mostOthers;) {
    const int next = StepFrom(cell);
    if (state_.CageOfCell[next] == 0) {
      CurrentCell = cell;
      return next;
    }
    cell ^= (cell ^ next) & own_[next];
    others += 1 + own_[next];
  }
  return std::nullopt;
}

// The cell that one step of the walk leads to, in a random direction.
int CageGenerator::StepFrom(int cell) {
  view_.PumpEvents();
  const int direction = std::exchange(nextDirection_, DrawDirection());
  return kNeighbours[cell][direction];
}

// A cage that touches no unclaimed cell could never claim one nor count a failure: the walk would
// not end. Happens in rotational layouts, in pockets that cages and their mirrors have closed off.
bool CageGenerator::IsEnclosed() const {
  return (NeighboursOf(grown_) & unclaimed_.All()).Empty();
}

void CageGenerator::StartCage(int cage, int cell) {
  Cage = cage;
  grown_ = {};
  own_ = {};
  CurrentCell = cell;
  Claim(cell, cage);
  unclaimed_ = unclaimed_.Without(cell);
}

void CageGenerator::Claim(int cell, int cage) {
  state_.CageOfCell[cell] = static_cast<std::int16_t>(cage);
  if (cage != Cage) return;
  grown_ = grown_ | CellSet::Of(cell);
  own_[cell] = -1;
}

void CageGenerator::GiveBack(int cell) {
  state_.CageOfCell[cell] = 0;
  grown_ = grown_ - CellSet::Of(cell);
  own_[cell] = 0;
}

void CageGenerator::PaintProgress(int cell) {
  if (form_.Checked(CheckBox::CheckVisualize)) Paint(cell);
}

void CageGenerator::Paint(int cell) {
  form_.SetCellOpaque(cell, true);
  form_.SetCellBackground(cell, CageColourOf(state_, cell));
}

}  // namespace tessel
