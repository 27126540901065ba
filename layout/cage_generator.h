// Saws the board into nine connected cages of nine cells by random walks.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include "core/cell_set.h"
#include "core/layout.h"
#include "core/progress.h"
#include "core/random_source.h"
#include "layout/regions.h"

namespace tessel {

enum class LayoutSymmetry : std::uint8_t {
  kNone,
  kHalfTurn,  // cage c and cage 10 - c change places under a half turn, cage 5 with itself
};

// In layouts of half-turn symmetry, the cage around the centre cell; it grows last.
inline constexpr int kCentreCage = 5;

class CageGenerator {
 public:
  // Draws from `random`, which is seeded by the caller and shared by all attempts: the direction of
  // the next step is always drawn in advance.
  CageGenerator(RandomSource& random, Progress& progress);

  // One attempt from an empty board; nothing when a cage could not be grown or mirrored. Tells
  // `progress` of every step, and of every cell that stays claimed for the rest of the attempt.
  std::optional<Layout> Attempt(LayoutSymmetry symmetry);

 private:
  bool GrowAll();
  bool GrowCage();
  bool ClaimNextCell(int cellInCage);
  bool KeepsLayoutPossible(int cell, int cellsToCover, const Regions& left) const;
  bool MirrorCage();
  bool GrowCentreCage();
  bool ClaimNextCentreCell();
  bool IsEnclosed() const;
  std::optional<int> WalkToUnclaimed(int maxForeignSteps);
  int StepFrom(int cell);
  int DrawDirection() { return DrawIndex(random_, 4); }
  void StartCage(int cage, int cell);
  void AddToCurrentCage(int cell);
  void TakeFromCurrentCage(int cell);
  void Tell(int cell) { progress_.CellClaimed(cell, cages_[cell]); }

  RandomSource& random_;
  Progress& progress_;
  int nextDirection_;

  // The attempt under way. Its steps return false when it has to be abandoned.
  bool rotational_ = false;
  CageNumbers cages_{};                 // 0: in no cage yet
  int Cage = 0;                         // the cage being grown
  int CurrentCell = 0;                  // the walker, always on a cell of Cage
  std::array<int, kSide> GrowthList{};  // the cells of Cage in the order of their claiming
  CellSet currentCage_;                 // the cells of Cage
  // The same as -1 for its cells and 0 for the others, for the arithmetic of the walk.
  PerCell<std::int8_t> currentCageMask_{};
  Regions unclaimed_;  // of the cells in no cage, until the centre cage grows
};

// Says whether a finished layout can be used.
using AcceptLayout = std::function<bool(const Layout&)>;

// Saws until `accept` is content; nothing when `progress` asked to stop.
std::optional<Layout> Saw(LayoutSymmetry symmetry, RandomSource& random, const AcceptLayout& accept,
                          Progress& progress = Unwatched());

}  // namespace tessel
