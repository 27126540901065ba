// Every step of a kind that a position offers.
//
// But for the Law of Leftovers the patterns are those of the hint ladder, found by its own
// searches, so that the hint button can name every other step that a grade counts. Its narrow view
// is kept: a naked set counts when a digit that all its cells hold can be removed somewhere, a fish
// when its lines have exactly the same places, and hidden quads are not looked for. Quints are left
// out: the ladder's own compares five cells with four digits and never finds any.
//
// Two of its patterns can be one step. In a house with u open cells, a naked set of k cells and the
// hidden set of the other u - k digits remove the same candidates: this is one step of size
// min(k, u - k), called naked where both are as large.
#pragma once

#include <vector>

#include "grade/candidate_grid.h"
#include "grade/step.h"

namespace tessel::grade {

// The position must be free of contradictions: every open cell holds the digit of some solution.
std::vector<Step> StepsOf(StepKind kind, const Layout& layout, const CandidateGrid& position);

// The Law of Leftovers for `lines` adjacent lines, 1..4, and as many cages: the cells of the lines
// outside the cages and the cells of the cages outside the lines hold the same digits, as often.
// A digit that has no place among the first therefore has none among the second, and the other way
// round. Five to eight lines from an edge would only repeat what the four to one beyond them say.
// One line says what pointing and claiming say, so no kind of step is made of it.
std::vector<Step> LeftoverSteps(int lines, const Layout& layout, const CandidateGrid& position);

}  // namespace tessel::grade
