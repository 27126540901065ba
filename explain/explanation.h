// The way from a position to the solution as a person would go it: one step after the other, and
// after each the easiest that is to be seen then.
#pragma once

#include <vector>

#include "core/puzzle.h"
#include "grade/way.h"

namespace tessel::explain {

// A step, and the position that it was found in.
struct Taken {
  grade::Step step;
  grade::CandidateGrid before;
};

struct Explanation {
  Layout layout;
  Grid givens{};
  std::vector<Taken> steps;
  grade::CandidateGrid end;  // solved, unless no kind of step is left

  // The position after step k of 0..steps.size() - 1.
  const grade::CandidateGrid& After(std::size_t k) const {
    return k + 1 < steps.size() ? steps[k + 1].before : end;
  }
  const grade::CandidateGrid& Start() const { return steps.empty() ? end : steps.front().before; }
};

// `puzzle` must have exactly one solution. `start` must agree with it: its digits are the
// solution's, its open cells have the solution's digit as a candidate.
Explanation Explain(const Puzzle& puzzle, const grade::CandidateGrid& start);
// From the givens on.
Explanation Explain(const Puzzle& puzzle);

}  // namespace tessel::explain
