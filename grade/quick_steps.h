// What each kind of step removes from a quick position. Each search is told in terms of the plain
// one, in steps.h, that finds the same.
#pragma once

#include "grade/quick_position.h"
#include "grade/step_kind.h"

namespace tessel::grade {

// `kind` is none of the singles.
Removals RemovalsOf(StepKind kind, const QuickPosition& position);

Removals QuickPointing(const QuickPosition& position);
Removals QuickClaiming(const QuickPosition& position);
Removals QuickLeftovers(int lines, const QuickPosition& position);
Removals QuickNakedSets(int size, const QuickPosition& position);
Removals QuickHiddenSets(int size, const QuickPosition& position);
Removals QuickFish(int size, const QuickPosition& position);

}  // namespace tessel::grade
