// Saws the board into nine connected cages of nine cells by random walks.
#pragma once

#include <array>
#include <functional>
#include <optional>

#include "core/cell_set.h"
#include "core/form.h"
#include "core/game_state.h"
#include "core/random_source.h"
#include "layout/regions.h"

namespace tessel {

class CageGenerator {
 public:
  // Says of the finished layout in CageOfCell and CageCells whether it can be kept.
  using AcceptLayout = std::function<bool()>;

  CageGenerator(GameState& state, Form& form, View& view, RandomSource& random, Clock& clock,
                AcceptLayout accept);

  // On return CageOfCell and CageCells hold a complete accepted layout, every cell is painted in
  // its cage's colour and the beep has sounded. Reads the box Rotational once an attempt and
  // CheckVisualize at every claimed cell. Returns only when it has succeeded.
  void BuildTesselPattern();
  // The nine 3x3 boxes, painted; no beep.
  void BuildRegularLayout();

 private:
  bool Attempt();
  bool GrowCage();
  bool ClaimNextCell(int k);
  bool MayStand(int cell, int cellsToCover, const Regions& left) const;
  bool MirrorCage();
  bool GrowCentreCage();
  bool ClaimNextCentreCell();
  bool IsEnclosed() const;
  std::optional<int> WalkToUnclaimed(int mostOthers);
  int StepFrom(int cell);
  int DrawDirection() { return DrawIndex(random_, 4); }
  void StartCage(int cage, int cell);
  void Claim(int cell, int cage);
  void GiveBack(int cell);
  void PaintProgress(int cell);
  void Paint(int cell);

  GameState& state_;
  Form& form_;
  View& view_;
  RandomSource& random_;
  Clock& clock_;
  AcceptLayout accept_;

  int nextDirection_ = 0;

  // The attempt at work. Every step below is part of one; those that can fail return false when the
  // attempt is to be abandoned.
  bool rotational_ = false;
  int Cage = 0;                         // the cage being grown
  int CurrentCell = 0;                  // the walker, always on a cell of Cage
  std::array<int, kSide> GrowthList{};  // the cells of Cage in the order of their claiming
  CellSet grown_;                       // the cells of Cage
  PerCell<std::int8_t> own_{};          // -1 for these, 0 for the others: the walk's arithmetic
  Regions unclaimed_;                   // of the cells in no cage, until the centre cage grows
};

}  // namespace tessel
