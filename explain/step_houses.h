// The houses of a step, with their cells.
#pragma once

#include <vector>

#include "core/layout.h"
#include "grade/step.h"

namespace tessel::explain {

// In the order of the step.
std::vector<House> HousesOf(const Layout& layout, const grade::Step& step);

// The Law of Leftovers: the cells of the lines outside the cages, and those of the cages outside
// the lines. One of the two has no place for the digit, so that the other loses it.
struct Leftovers {
  std::vector<House> lines;
  std::vector<House> cages;
  CellSet ofLines;
  CellSet ofCages;
};

Leftovers LeftoversOf(const Layout& layout, const grade::Step& step);

bool IsLeftovers(grade::StepKind kind);
bool IsFish(grade::StepKind kind);

CellSet CellsOf(const House& house);
CellSet CellsOf(const std::vector<House>& houses);

}  // namespace tessel::explain
