// Steps of every kind, as they come up in explained puzzles.
#pragma once

#include <optional>

#include "explain/explanation.h"
#include "tests/grade/made_puzzles.h"

namespace tessel::explain {

struct FoundStep {
  Explanation explanation;
  std::size_t k = 0;

  const grade::Step& Step() const { return explanation.steps[k].step; }
};

// The first step of the kind in the puzzles of the first `seeds` seeds; none if it does not occur.
inline std::optional<FoundStep> FindStep(grade::StepKind kind, std::uint64_t seeds = 150) {
  grade::PuzzleMaker maker;
  for (std::uint64_t seed = 0; seed < seeds; ++seed) {
    const Explanation explanation = Explain(maker.MakeAnyKind(seed));
    for (std::size_t k = 0; k < explanation.steps.size(); ++k) {
      if (explanation.steps[k].step.kind == kind) return FoundStep{explanation, k};
    }
  }
  return std::nullopt;
}

}  // namespace tessel::explain
