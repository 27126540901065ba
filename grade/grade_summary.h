// What many grades come to. Takes no more memory for more of them.
#pragma once

#include <cstdint>
#include <map>

#include "grade/grade.h"

namespace tessel::grade {

struct GradeSummary {
  struct OfKind {
    std::uint64_t puzzles = 0;  // with a step of the kind
    std::uint64_t steps = 0;

    friend bool operator==(const OfKind&, const OfKind&) = default;
  };

  std::uint64_t puzzles = 0;
  std::array<std::uint64_t, kLevelCount> levels{};               // puzzles of level 1, 2, ...
  std::array<OfKind, kStepKindCount> kinds{};                    // in the order of StepKind
  std::map<int, std::array<std::uint64_t, kLevelCount>> scores;  // puzzles by score, then by level

  // Counts one puzzle more.
  void Add(const Grade& grade);

  friend bool operator==(const GradeSummary&, const GradeSummary&) = default;
};

}  // namespace tessel::grade
