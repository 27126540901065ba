// The whole way to a solution, with the reason of every step.
#pragma once

#include "grade/grade.h"
#include "grade/steps.h"

namespace tessel::grade {

struct Round {
  StepKind kind = StepKind::kNakedSingle;
  std::vector<Step> steps;  // all of this kind that the position before offered, at least one
  CandidateGrid after;      // when all of them are taken
};

struct Way {
  CandidateGrid start;
  std::vector<Round> rounds;

  // The solution, or the position where the steps end.
  const CandidateGrid& End() const { return rounds.empty() ? start : rounds.back().after; }
};

// The givens must have exactly one solution.
Way WayOf(const Layout& layout, const Grid& givens);

// What GradeOf tells of the puzzle, counted from its way.
Grade GradeOf(const Way& way);

// The position with the step's digit written, or its candidates removed.
CandidateGrid After(const Layout& layout, CandidateGrid position, const Step& step);

}  // namespace tessel::grade
