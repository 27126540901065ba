// The fast way to a grade.
#include "grade/grade.h"
#include "grade/quick_steps.h"

namespace tessel::grade {

namespace {

// Takes every step of the kind that the position offers and returns how many there are.
int TakeAll(StepKind kind, QuickPosition& position) {
  if (kind == StepKind::kNakedSingle) return position.WriteNakedSingles();
  if (kind == StepKind::kHiddenSingle) return position.WriteHiddenSingles();
  const Removals removals = RemovalsOf(kind, position);
  position.Remove(removals);
  return removals.steps;
}

// False where no kind of step is left.
bool TakeRound(QuickPosition& position, Grade& grade) {
  for (const StepKindFacts& facts : kStepKinds) {
    const int steps = TakeAll(facts.kind, position);
    if (steps == 0) continue;
    grade.Count(facts.kind, steps);
    return true;
  }
  return false;
}

}  // namespace

Removals RemovalsOf(StepKind kind, const QuickPosition& position) {
  switch (kind) {
    case StepKind::kNakedSingle:
    case StepKind::kHiddenSingle:
      return {};
    case StepKind::kPointing:
      return QuickPointing(position);
    case StepKind::kClaiming:
      return QuickClaiming(position);
    case StepKind::kNakedPair:
      return QuickNakedSets(2, position);
    case StepKind::kHiddenPair:
      return QuickHiddenSets(2, position);
    case StepKind::kNakedTriple:
      return QuickNakedSets(3, position);
    case StepKind::kHiddenTriple:
      return QuickHiddenSets(3, position);
    case StepKind::kTwoLineLeftovers:
      return QuickLeftovers(2, position);
    case StepKind::kNakedQuad:
      return QuickNakedSets(4, position);
    case StepKind::kXWing:
      return QuickFish(2, position);
    case StepKind::kThreeLineLeftovers:
      return QuickLeftovers(3, position);
    case StepKind::kSwordFish:
      return QuickFish(3, position);
    case StepKind::kFourLineLeftovers:
      return QuickLeftovers(4, position);
  }
  return {};
}

Grade GradeOf(const Layout& layout, const Grid& givens) {
  QuickPosition position(layout, StartOf(layout, givens));
  Grade grade;
  while (!position.Solved()) {
    if (TakeRound(position, grade)) continue;
    grade.level = Level::kBeyond;
    grade.stuck = position.Value();
    break;
  }
  return grade;
}

}  // namespace tessel::grade
