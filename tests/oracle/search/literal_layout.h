// The sawing of layout/ written out: a walk step by step, its look-ahead a scan of the whole board
// for every cell of a region.
#pragma once

#include <functional>

#include "core/random_source.h"
#include "tests/oracle/search/oracle_board.h"

namespace tessel::oracle {

class LiteralLayout {
 public:
  enum class Mode : std::uint8_t { kRandom, kRotational };

  explicit LiteralLayout(RandomSource& random) : random_(random) {}

  // The random source is used as it stands: seed it first.
  Layout BuildTesselPattern(Mode mode);
  // CageOfCell holds the partial layout, and holds it again on return.
  bool OpenField(int CellsToCover, int CurrentCage, int LastAddedCell);

  Grid CageOfCell{};
  std::function<bool(const Layout&)> accept;  // keeps every layout when empty
  long steps = 0;     // of the walk, of all attempts and calls: one pump each
  long attempts = 0;  // of all calls
  long enclosed = 0;  // attempts abandoned because the growing cage could never claim a cell

 private:
  void Attempt();
  void GrowCage();
  void Step(int k);
  void MirrorCage();
  void GrowCentreCage();
  void CentreStep();
  bool Enclosed() const;
  bool LeavesBoard() const;
  int Neighbour() const;
  bool CageFourRuleRefuses(int n) const;
  int LowestUnclaimed() const;
  int FloodFill(std::int16_t mark);
  bool MarkNextCell(std::int16_t mark);
  void ClearMarks();

  RandomSource& random_;
  Mode mode_ = Mode::kRandom;
  int Cage = 0;
  int CurrentCell = 0;
  int Direction = 0;  // not 0 after the cages: the attempt has failed
  int FailCount = 0;
  std::array<int, 9> GrowthList{};
};

}  // namespace tessel::oracle
