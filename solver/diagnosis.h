// Why givens have no solution, and which of them are not needed.
#pragma once

#include <optional>
#include <vector>

#include "solver/solver.h"

namespace tessel::solver {

// A digit that is given twice in a house.
struct Clash {
  int digit = 0;
  House house;
  int first = 0;  // the cells, the lower one first
  int second = 0;

  friend bool operator==(const Clash&, const Clash&) = default;
};
// The first one: rows, then columns, then cages.
std::optional<Clash> FindClash(const Layout& layout, const Grid& givens);

// The first cell without a given whose peers have all nine digits.
std::optional<int> FindCellWithoutDigit(const Layout& layout, const Grid& givens);

// The givens that could go, each alone, and leave the solution the only one. `solution` is the only
// completion of the givens in the layout of the solver.
std::vector<int> FindNeedlessGivens(Solver& solver, const Grid& givens, const Grid& solution);

}  // namespace tessel::solver
