#include "grade/grade_summary.h"

namespace tessel::grade {

void GradeSummary::Add(const Grade& grade) {
  const std::size_t level = static_cast<std::size_t>(grade.level) - 1;
  ++puzzles;
  ++levels[level];
  ++scores.try_emplace(grade.score).first->second[level];
  for (std::size_t kind = 0; kind < kStepKindCount; ++kind) {
    kinds[kind].puzzles += grade.steps[kind] != 0 ? 1 : 0;
    kinds[kind].steps += static_cast<std::uint64_t>(grade.steps[kind]);
  }
}

}  // namespace tessel::grade
