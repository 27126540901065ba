// Naked and hidden singles.
#include <algorithm>
#include <bit>

#include "grade/step_searches.h"

namespace tessel::grade {

namespace {

// A cell that is the only place in several houses is one step.
void AddHiddenSingle(Steps& steps, const House& house, int cell, int digit) {
  const Placement placement{cell, digit};
  const auto same = [&](const Step& step) { return step.placement == placement; };
  const auto found = std::ranges::find_if(steps, same);
  if (found != steps.end()) return found->houses.push_back(HouseNameOf(house));
  Step step{StepKind::kHiddenSingle, {HouseNameOf(house)}, CellSet::Of(cell), BitOf(digit)};
  step.placement = placement;
  steps.push_back(std::move(step));
}

}  // namespace

Steps NakedSingleSteps(const Layout& /*layout*/, const CandidateGrid& position) {
  Steps steps;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const Mask mask = position.candidates[cell];
    if (!std::has_single_bit(static_cast<unsigned>(mask))) continue;
    Step step{StepKind::kNakedSingle, {}, CellSet::Of(cell), mask};
    step.placement = Placement{cell, LowestDigitOf(mask)};
    steps.push_back(std::move(step));
  }
  return steps;
}

Steps HiddenSingleSteps(const Layout& layout, const CandidateGrid& position) {
  Steps steps;
  for (int digit = 1; digit <= kSide; ++digit) {
    const CellSet candidates = CandidatesOf(position, digit);
    for (const House& house : layout.AllHouses()) {
      const CellSet places = candidates & CellsOf(house);
      if (places.Count() == 1) AddHiddenSingle(steps, house, places.First(), digit);
    }
  }
  return steps;
}

}  // namespace tessel::grade
