// The search, the fill and the concealing with everything around them, on a layout.
#pragma once

#include <algorithm>

#include "core/random_source.h"
#include "shell/concealing.h"
#include "shell/filling.h"
#include "shell/progress_drawing.h"
#include "shell/window_progress.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/recording_view.h"
#include "tests/oracle/search/program_layout.h"
#include "tests/search/search_probe.h"

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
    SetLayout(state, oracle::ProgramLayout(layout));
    search.Use(oracle::ProgramLayout(layout));
  }
  bool UniqueSolution(const CellDigits& givens) { return search.UniqueSolution(givens, progress); }
  SearchLevel& Top() { return probe.Levels()[probe.Depth()]; }

  FakeClock clock;
  RecordingView view;
  GameState state;
  Form form{view};
  SeededRandom random;
  WindowProgress progress{state, view};
  ExactCoverSearch search{Layout::Regular()};
  SearchProbe probe{search};
  Filling fill{state, form, view, random, clock, search};
  Concealing concealer{state, form, view, random, clock, search};
  ProgressDrawing drawing{state, form, search};
};

}  // namespace tessel
