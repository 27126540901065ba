// The steps that the hint ladder knows: its techniques list all their patterns.
#include "grade/step_searches.h"
#include "hints/ladder.h"

namespace tessel::grade {

namespace {

Step StepOf(StepKind kind, const Hint& hint) {
  Step step{kind, {}, hint.cells, hint.digits};
  for (const House& house : hint.houses) step.houses.push_back(HouseNameOf(house));
  if (hint.PlacesDigit()) step.placement = Placement{*hint.cell, *hint.digit};
  for (const auto& [cell, digits] : hint.eliminations) step.removals.push_back({cell, digits});
  return step;
}

// A cell that is the only place in several houses is one step.
void AddOrJoin(Steps& steps, Step step) {
  for (Step& other : steps) {
    if (!step.placement || step.placement != other.placement) continue;
    other.houses.insert(other.houses.end(), step.houses.begin(), step.houses.end());
    return;
  }
  steps.push_back(std::move(step));
}

}  // namespace

Steps HintSteps(StepKind kind, const Technique& technique, const Layout& layout,
                const CandidateGrid& position) {
  Steps steps;
  for (const Hint& hint : AllHints(technique, {layout, position.digits, position.candidates})) {
    AddOrJoin(steps, StepOf(kind, hint));
  }
  return steps;
}

}  // namespace tessel::grade
