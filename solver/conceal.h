// Conceals cells of a complete solution by the rule of the window, without a window.
#pragma once

#include "core/random_source.h"
#include "core/random_stream.h"
#include "solver/solver.h"

namespace tessel::solver {

enum class ConcealRule : std::uint8_t {
  kSingle,  // a cell at a time
  kPairs,   // together with the cell that a half turn of the board brings to its place
};

// With as many givens left, the window goes no further. A pair may leave one less.
inline constexpr int kDefaultGivens = 24;
// As many as are needed: then no given can be missed.
inline constexpr int kMinimalGivens = 0;

// The givens that are left of `solution`, a filling of the solver's layout. Draws of the same
// random source leave the same givens as the window. Cells are concealed until no more than
// `fewest` givens are left, or every cell has been tried.
Grid Conceal(Solver& solver, const Grid& solution, ConcealRule rule, RandomSource& random,
             int fewest = kDefaultGivens);
Grid Conceal(Solver& solver, const Grid& solution, ConcealRule rule, RandomStream& random,
             int fewest = kDefaultGivens);

}  // namespace tessel::solver
