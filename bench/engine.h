// The generation without a window: one stage after another, each from a seed of its own, so that a
// layout does not depend on what was sawn before it.
#pragma once

#include "core/random_source.h"
#include "layout/cage_generator.h"
#include "search/conceal.h"
#include "search/fill.h"
#include "search/random_restarts.h"
#include "solver/solver.h"

namespace tessel::bench {

enum class LayoutKind : std::uint8_t { kRandom, kRotational, kRegular };

class StepCount final : public Progress {
 public:
  void Step() override { ++steps; }

  std::int64_t steps = 0;
};

class Engine {
 public:
  void Use(const Layout& other) {
    layout = other;
    search.Use(layout);
  }
  // Keeps the first layout that the walk completes, whether it can be filled or not.
  void SawAnyLayout(LayoutKind kind, std::uint64_t seed) {
    SawLayout(kind, seed, [](const Layout&) { return true; });
  }
  // The Saw command's work: layouts are sawn until one can be filled.
  void SawFillableLayout(LayoutKind kind, std::uint64_t seed) {
    SawLayout(kind, seed, solver::CanBeFilled);
  }
  // Leaves the filling of the layout in `solution`.
  void FillLayout(std::uint64_t seed) {
    SeededRandom random(seed);
    search.Use(layout);
    solution = Fill(search, random, progress).value();
  }
  // Leaves the givens of `solution` in `givens`.
  void ConcealSolution(ConcealMode mode, std::uint64_t seed) {
    SeededRandom random(seed);
    search.Use(layout);
    givens = Conceal(search, solution, mode, random, progress).value();
  }

  Layout layout = Layout::Regular();
  Grid solution{};
  Grid givens{};
  StepCount progress;
  ExactCoverSearch search{Layout::Regular()};

 private:
  void SawLayout(LayoutKind kind, std::uint64_t seed, const AcceptLayout& accept) {
    if (kind == LayoutKind::kRegular) {
      layout = Layout::Regular();
      return;
    }
    const auto symmetry =
        kind == LayoutKind::kRotational ? LayoutSymmetry::kHalfTurn : LayoutSymmetry::kNone;
    SeededRandom random(seed);
    layout = Saw(symmetry, random, accept, progress).value();
  }
};

}  // namespace tessel::bench
