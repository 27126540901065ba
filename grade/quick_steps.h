// What each kind of step removes from a quick position. Each search is told in terms of the plain
// one, in steps.h, that finds the same.
#pragma once

#include "grade/quick_position.h"
#include "grade/step_kind.h"

namespace tessel::grade {

// `kind` is none of the singles.
Removals RemovalsOf(StepKind kind, const QuickPosition& position);

// Each in the file of its family. `lines`: 2..4. `size`: of sets 2..4, of hidden ones 2 or 3, of
// fish 2 or 3.
Removals QuickPointing(const QuickPosition& position);
Removals QuickClaiming(const QuickPosition& position);
Removals QuickLeftovers(int lines, const QuickPosition& position);
Removals QuickNakedSets(int size, const QuickPosition& position);
Removals QuickHiddenSets(int size, const QuickPosition& position);
Removals QuickFish(int size, const QuickPosition& position);

}  // namespace tessel::grade
