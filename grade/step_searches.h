// The searches behind StepsOf, one for each family of kinds, and what they share.
#pragma once

#include <span>

#include "grade/steps.h"
#include "hints/technique.h"

namespace tessel::grade {

using Steps = std::vector<Step>;

// All hints of the technique, as steps of the kind.
Steps HintSteps(StepKind kind, const Technique& technique, const Layout& layout,
                const CandidateGrid& position);
// Naked and hidden pairs and triples, and naked quads.
Steps SetSteps(StepKind kind, const Layout& layout, const CandidateGrid& position);

// Removals of `digits` from those of `cells` that have some of them.
std::vector<Removal> RemovalsOf(const CandidateGrid& position, CellSet cells, Mask digits);

// The nine cells of the house.
CellSet CellsOf(const House& house);
// What a step says of the house: its kind and its number.
HouseName HouseNameOf(const House& house);

// The two directions in which lines run.
inline constexpr std::array kLineKinds{HouseKind::kRow, HouseKind::kColumn};

}  // namespace tessel::grade
