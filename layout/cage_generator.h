// Saws the board into nine connected cages of nine cells by random walks.
#pragma once

#include <functional>

#include "core/cell_set.h"
#include "core/form.h"
#include "core/game_state.h"
#include "core/random_source.h"

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

  // Whether the unclaimed cells can still be covered by the cage being grown, which needs
  // CellsToCover more cells (0..7), and by whole cages. CurrentCage is the number of cages counted
  // as begun; LastAddedCell is not consulted.
  bool OpenField(int CellsToCover, int CurrentCage, int LastAddedCell) const;

 private:
  enum class Outcome { kDone, kAbandoned };

  Outcome Attempt();
  Outcome GrowCage();
  Outcome ClaimNextCell(int k);
  Outcome MirrorCage();
  Outcome GrowCentreCage();

  GameState& state_;
  Form& form_;
  View& view_;
  RandomSource& random_;
  Clock& clock_;
  AcceptLayout accept_;
};

}  // namespace tessel
