// The search, the fill and the concealing with everything around them, on a layout.
#pragma once

#include <algorithm>

#include "core/random_source.h"
#include "search/conceal.h"
#include "search/fill.h"
#include "search/progress_drawing.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/recording_view.h"
#include "tests/oracle/search/oracle_board.h"

namespace tessel {

// The lanes of the board's cells.
inline MaskBoard OnBoard(const Lanes& lanes) {
  MaskBoard cells;
  std::copy_n(lanes.begin(), kCellCount, cells.begin());
  return cells;
}

struct SearchRig {
  explicit SearchRig(const oracle::Layout& layout = oracle::RegularLayout(), std::uint64_t seed = 1)
      : clock(seed) {
    FillTables(state);
    Use(layout);
  }

  void Use(const oracle::Layout& layout) {
    state.CageOfCell = layout.cageOfCell;
    state.CageCells = layout.cageCells;
  }
  bool UniqueSolution(const CellDigits& givens) {
    state.WorkGrid = givens;
    return search.UniqueSolution();
  }
  SearchLevel& Top() { return search.Levels[search.Depth]; }

  FakeClock clock;
  RecordingView view;
  GameState state;
  Form form{view};
  SeededRandom random;
  ExactCoverSearch search{state, view};
  FillGenerator fill{state, form, view, random, clock, search};
  Concealer concealer{state, form, view, random, clock, search};
  ProgressDrawing drawing{state, form, search};
};

}  // namespace tessel
