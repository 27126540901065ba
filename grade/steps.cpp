#include "grade/steps.h"

#include "grade/step_searches.h"
#include "hints/ladder.h"

namespace tessel::grade {

Steps StepsOf(StepKind kind, const Layout& layout, const CandidateGrid& position) {
  const auto from = [&](const Technique& technique) {
    return HintSteps(kind, technique, layout, position);
  };
  switch (kind) {
    case StepKind::kNakedSingle:
      return from(kNakedSingle);
    case StepKind::kHiddenSingle:
      return from(kHiddenSingle);
    case StepKind::kPointing:
      return from(kPointingPair);
    case StepKind::kClaiming:
      return from(kBoxLine);
    case StepKind::kNakedPair:
    case StepKind::kHiddenPair:
    case StepKind::kNakedTriple:
    case StepKind::kHiddenTriple:
    case StepKind::kNakedQuad:
      return SetSteps(kind, layout, position);
    case StepKind::kTwoLineLeftovers:
      return LeftoverSteps(2, layout, position);
    case StepKind::kThreeLineLeftovers:
      return LeftoverSteps(3, layout, position);
    case StepKind::kFourLineLeftovers:
      return LeftoverSteps(4, layout, position);
    case StepKind::kXWing:
      return from(kXWing);
    case StepKind::kSwordFish:
      return from(kSwordFish);
  }
  return {};
}

std::vector<Removal> RemovalsOf(const CandidateGrid& position, CellSet cells, Mask digits) {
  std::vector<Removal> removals;
  ForEach(cells, [&](int cell) {
    const auto removed = static_cast<Mask>(position.candidates[cell] & digits);
    if (removed != 0) removals.push_back({cell, removed});
  });
  return removals;
}

CellSet CellsOf(const House& house) {
  CellSet cells;
  for (const int cell : house.cells) cells = cells | CellSet::Of(cell);
  return cells;
}

HouseName HouseNameOf(const House& house) {
  return {house.kind, house.index};
}

}  // namespace tessel::grade
