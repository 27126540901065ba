#include "grade/grade.h"

#include <algorithm>
#include <cassert>

namespace tessel::grade {

void Grade::Count(StepKind kind, int count) {
  assert(count > 0);
  level = std::max(level, FactsOf(kind).level);
  hardest = std::max(hardest.value_or(kind), kind);
  score += count * FactsOf(kind).weight;
  steps[static_cast<std::size_t>(kind)] += count;
  fewest = rounds == 0 ? count : std::min(fewest, count);
  ++rounds;
}

}  // namespace tessel::grade
