#include "layout/cage_generator.h"

#include <limits>
#include <utility>

#include "layout/open_field.h"

namespace tessel {

namespace {

constexpr int kMaxFailures = 50;  // counted failures of one step that abandon the attempt
constexpr int kUnlimited = std::numeric_limits<int>::max();
constexpr int kRotationalCagesToGrow = 4;

// Cage 4 may not touch the centre on perpendicular sides: the centre cage could not leave it.
constexpr CellSet kAboveAndBelowCentre = CellSet::Of(31) | CellSet::Of(49);
constexpr CellSet kLeftAndRightOfCentre = CellSet::Of(39) | CellSet::Of(41);

// The cells to the right, below, to the left and above. A move off the board leads back to the cell
// itself, so that such a step has no effect and needs no test.
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

CageGenerator::CageGenerator(RandomSource& random, Progress& progress)
    : random_(random), progress_(progress), nextDirection_(DrawDirection()) {}

std::optional<Layout> CageGenerator::Attempt(LayoutSymmetry symmetry) {
  rotational_ = symmetry == LayoutSymmetry::kHalfTurn;
  cages_ = {};
  unclaimed_ = {kAllCells, {}, {}};
  if (!GrowAll()) return std::nullopt;
  return Layout::FromCages(cages_).value();
}

bool CageGenerator::GrowAll() {
  const int cagesToGrow = rotational_ ? kRotationalCagesToGrow : kSide;
  for (Cage = 1; Cage <= cagesToGrow; ++Cage) {
    if (!GrowCage() || (rotational_ && !MirrorCage())) return false;
  }
  return !rotational_ || GrowCentreCage();
}

bool CageGenerator::GrowCage() {
  StartCage(Cage, unclaimed_.All().First());
  GrowthList[0] = CurrentCell;
  for (int k = 1; k < kSide; ++k) {
    if (IsEnclosed() || !ClaimNextCell(k)) return false;
    GrowthList[k] = CurrentCell;
    Tell(CurrentCell);
  }
  return true;
}

// Walks until cell number `cellInCage` (1..8) of the cage is claimed, or too many claims had to be
// given back.
bool CageGenerator::ClaimNextCell(int cellInCage) {
  int failCount = 0;
  while (failCount < kMaxFailures) {
    const int next = *WalkToUnclaimed(kUnlimited);
    if (!(rotational_ && next == kCentreCell)) {
      AddToCurrentCage(next);
      const Regions left = unclaimed_.Without(next);
      if (KeepsLayoutPossible(next, kSide - 1 - cellInCage, left)) {
        unclaimed_ = left;
        CurrentCell = next;
        return true;
      }
      TakeFromCurrentCage(next);
    }
    ++failCount;
  }
  return false;
}

bool CageGenerator::KeepsLayoutPossible(int cell, int cellsToCover, const Regions& left) const {
  if (!OpenField(left, cellsToCover, rotational_ ? 2 * Cage - 1 : Cage, cell)) return false;
  if (!rotational_ || Cage != kRotationalCagesToGrow) return true;
  if (kAboveAndBelowCentre.Contains(cell)) return (currentCage_ & kLeftAndRightOfCentre).Empty();
  if (kLeftAndRightOfCentre.Contains(cell)) return (currentCage_ & kAboveAndBelowCentre).Empty();
  return true;
}

// After a conflict the other cells are still mirrored, and shown, before the attempt is abandoned.
bool CageGenerator::MirrorCage() {
  CellSet mirrored;
  bool conflict = false;
  for (const int cell : GrowthList) {
    const int mirror = HalfTurnOf(cell);
    if (cages_[mirror] != 0) {
      conflict = true;
      continue;
    }
    cages_[mirror] = static_cast<std::uint8_t>(kSide + 1 - Cage);
    mirrored = mirrored | CellSet::Of(mirror);
    Tell(mirror);
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

// The centre cage takes what is left, without look-ahead; steps into other cages count as failures.
bool CageGenerator::ClaimNextCentreCell() {
  const std::optional<int> next = WalkToUnclaimed(kMaxFailures);
  if (!next) return false;
  CurrentCell = *next;
  AddToCurrentCage(*next);
  Tell(*next);
  return true;
}

// A random walk inside the current cage; returns the first unclaimed cell that it meets. A step off
// the board does nothing; a step into another cage leaves the walker where it is and is counted;
// nothing is returned after `maxForeignSteps` of those.
//
// What a step finds cannot be predicted, so moving and counting are arithmetic instead of branches,
// and each direction is drawn one step early to hide the latency of the generator.
std::optional<int> CageGenerator::WalkToUnclaimed(int maxForeignSteps) {
  int cell = CurrentCell;
  for (int foreignSteps = 0; foreignSteps < maxForeignSteps;) {
    const int next = StepFrom(cell);
    if (cages_[next] == 0) {
      CurrentCell = cell;
      return next;
    }
    cell ^= (cell ^ next) & currentCageMask_[next];
    foreignSteps += 1 + currentCageMask_[next];
  }
  return std::nullopt;
}

// The cell that one step in a random direction leads to.
int CageGenerator::StepFrom(int cell) {
  progress_.Step();
  const int direction = std::exchange(nextDirection_, DrawDirection());
  return kNeighbours[cell][direction];
}

// A cage that touches no unclaimed cell could never claim one nor count a failure, and the walk
// would never end. This happens in rotational layouts, in pockets that cages and their mirrors have
// closed off.
bool CageGenerator::IsEnclosed() const {
  return (NeighboursOf(currentCage_) & unclaimed_.All()).Empty();
}

void CageGenerator::StartCage(int cage, int cell) {
  Cage = cage;
  currentCage_ = {};
  currentCageMask_ = {};
  CurrentCell = cell;
  AddToCurrentCage(cell);
  unclaimed_ = unclaimed_.Without(cell);
  Tell(cell);
}

void CageGenerator::AddToCurrentCage(int cell) {
  cages_[cell] = static_cast<std::uint8_t>(Cage);
  currentCage_ = currentCage_ | CellSet::Of(cell);
  currentCageMask_[cell] = -1;
}

void CageGenerator::TakeFromCurrentCage(int cell) {
  cages_[cell] = 0;
  currentCage_ = currentCage_ - CellSet::Of(cell);
  currentCageMask_[cell] = 0;
}

std::optional<Layout> Saw(LayoutSymmetry symmetry, RandomSource& random, const AcceptLayout& accept,
                          Progress& progress) {
  CageGenerator generator(random, progress);
  while (!progress.StopRequested()) {
    if (const auto layout = generator.Attempt(symmetry); layout && accept(*layout)) return layout;
  }
  return std::nullopt;
}

}  // namespace tessel
