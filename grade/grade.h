// How hard a puzzle is, for a solver who goes on in rounds: of all that the position offers, every
// step of the easiest kind is taken at once.
//
// What a round takes does not depend on where it looks first. Turned or mirrored, its cages
// numbered anew or its digits renamed, a puzzle therefore keeps its grade.
#pragma once

#include "grade/candidate_grid.h"
#include "grade/step_kind.h"

namespace tessel::grade {

struct Grade {
  Level level = Level::kEasy;
  std::optional<StepKind> hardest;          // none for a puzzle that needs no step
  int score = 0;                            // the weights of all steps
  std::array<int, kStepKindCount> steps{};  // taken of each kind
  int rounds = 0;
  int fewest = 0;                      // steps to choose from in any round; 0 without rounds
  std::optional<CandidateGrid> stuck;  // Level::kBeyond: where no kind of step is left

  // The steps of that kind that were taken.
  int StepsOf(StepKind kind) const { return steps[static_cast<std::size_t>(kind)]; }
  // Adds a round of `count` steps, at least one.
  void Count(StepKind kind, int count);

  friend bool operator==(const Grade&, const Grade&) = default;
};

// The givens must have exactly one solution. The fast way: WayOf tells the same, with reasons.
Grade GradeOf(const Layout& layout, const Grid& givens);

}  // namespace tessel::grade
