// The searches behind StepsOf, one for each family of kinds, and what they share.
#pragma once

#include <span>

#include "grade/steps.h"

namespace tessel::grade {

using Steps = std::vector<Step>;

Steps NakedSingleSteps(const Layout& layout, const CandidateGrid& position);
Steps HiddenSingleSteps(const Layout& layout, const CandidateGrid& position);
Steps PointingSteps(const Layout& layout, const CandidateGrid& position);
Steps ClaimingSteps(const Layout& layout, const CandidateGrid& position);
// Naked and hidden pairs, triples and quads.
Steps SetSteps(StepKind kind, const Layout& layout, const CandidateGrid& position);
// `size` lines, 2 or 3.
Steps FishSteps(int size, const Layout& layout, const CandidateGrid& position);

// Removals of `digits` from those of `cells` that have some of them.
std::vector<Removal> RemovalsOf(const CandidateGrid& position, CellSet cells, Mask digits);

CellSet CellsOf(const House& house);
HouseName HouseNameOf(const House& house);

// The two directions in which lines run.
inline constexpr std::array kLineKinds{HouseKind::kRow, HouseKind::kColumn};

}  // namespace tessel::grade
