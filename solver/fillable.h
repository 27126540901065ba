// Whether a layout can be filled, decided for every layout. Needs a SAT solver, so it is a library
// of its own: tessel_solver_sat.
#pragma once

#include "solver/solver.h"

namespace tessel::solver {

// A filling, or kNo; never kUnknown. What the search does not decide within a few thousand nodes is
// left to the SAT solver. The answer depends on the layout alone.
Filling DecideFillable(const Layout& layout, Path path = BestPath());

// The same by the SAT solver alone, which shares nothing with the search. Counts no nodes.
Filling DecideBySat(const Layout& layout);

// The completions of any givens of any layout, `most` (1 or 2) of them at most, as
// Solver::Completions gives them; ends for those that it does not end for, too. The solver is put
// to use for the layout.
std::vector<Grid> DecideCompletions(Solver& solver, const Layout& layout, const Grid& givens,
                                    int most = 2);

}  // namespace tessel::solver
