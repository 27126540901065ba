#include "explain/explanation.h"

#include <algorithm>

namespace tessel::explain {

namespace {

using grade::CandidateGrid;
using grade::Step;

int RemovedBy(const Step& step) {
  int removed = 0;
  for (const grade::Removal& removal : step.removals) removed += CandidateCount(removal.digits);
  return removed;
}

// Singles are taken in the order of their cells, so that the eye follows; of other steps the one
// that removes most.
bool IsTakenBefore(const Step& a, const Step& b) {
  if (a.placement && b.placement) return a.placement->cell < b.placement->cell;
  return RemovedBy(a) > RemovedBy(b);
}

std::optional<Step> NextStep(const Layout& layout, const CandidateGrid& position) {
  for (const grade::StepKindFacts& facts : grade::kStepKinds) {
    std::vector<Step> steps = grade::StepsOf(facts.kind, layout, position);
    if (!steps.empty()) return *std::ranges::min_element(steps, IsTakenBefore);
  }
  return std::nullopt;
}

}  // namespace

Explanation Explain(const Puzzle& puzzle, const CandidateGrid& start) {
  Explanation explanation{puzzle.layout, puzzle.givens, {}, start};
  while (auto step = NextStep(puzzle.layout, explanation.end)) {
    CandidateGrid after = grade::After(puzzle.layout, explanation.end, *step);
    explanation.steps.push_back({*std::move(step), explanation.end});
    explanation.end = after;
  }
  return explanation;
}

Explanation Explain(const Puzzle& puzzle) {
  return Explain(puzzle, grade::StartOf(puzzle.layout, puzzle.givens));
}

}  // namespace tessel::explain
