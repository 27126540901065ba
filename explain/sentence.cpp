#include "explain/sentence.h"

#include <cctype>

#include "core/names.h"
#include "explain/listing.h"
#include "explain/step_houses.h"
#include "hints/ladder.h"
#include "hints/wording.h"

namespace tessel::explain {

namespace {

using grade::Step;
using grade::StepKind;

// None for the Law of Leftovers, which the hint button never uses.
const Technique* TechniqueOf(StepKind kind) {
  switch (kind) {
    case StepKind::kNakedSingle:
      return &kNakedSingle;
    case StepKind::kHiddenSingle:
      return &kHiddenSingle;
    case StepKind::kPointing:
      return &kPointingPair;
    case StepKind::kClaiming:
      return &kBoxLine;
    case StepKind::kNakedPair:
      return &kNakedPair;
    case StepKind::kHiddenPair:
      return &kHiddenPair;
    case StepKind::kNakedTriple:
      return &kNakedTriple;
    case StepKind::kHiddenTriple:
      return &kHiddenTriple;
    case StepKind::kNakedQuad:
      return &kNakedQuad;
    case StepKind::kXWing:
      return &kXWing;
    case StepKind::kSwordFish:
      return &kSwordFish;
    case StepKind::kTwoLineLeftovers:
    case StepKind::kThreeLineLeftovers:
    case StepKind::kFourLineLeftovers:
      break;
  }
  return nullptr;
}

// The code that a hint has in a house or a line of that kind.
HintCode CodeOf(StepKind kind, HouseKind house) {
  switch (kind) {
    case StepKind::kXWing:
      return CodeFor(HintCode::kXWingRows, house);
    case StepKind::kSwordFish:
      return CodeFor(HintCode::kSwordFishRows, house);
    default:
      return HintCode::kNone;  // the words of the others do not depend on it
  }
}

// The step as the hint that its sentence is made from.
Hint HintOf(const Layout& layout, const Step& step) {
  Hint hint{.houses = HousesOf(layout, step), .cells = step.cells, .digits = step.digits};
  if (!hint.houses.empty()) hint.code = CodeOf(step.kind, hint.houses.front().kind);
  if (CandidateCount(step.digits) == 1) hint.digit = LowestDigitOf(step.digits);
  hint.cell = step.placement ? step.placement->cell : step.removals.front().cell;
  for (const auto& [cell, digits] : step.removals) hint.eliminations.push_back({cell, digits});
  return hint;
}

std::string LeftoversSentence(const Layout& layout, const Step& step) {
  const Leftovers in = LeftoversOf(layout, step);
  std::vector<std::string> starts;
  for (const House& cage : in.cages) starts.push_back(CellName(cage.cells[0]));
  return "The Law of Leftovers applies to " + tessel::NamesOf(in.lines) +
         " and to the cages that start at cells " + Listed(starts);
}

}  // namespace

std::string HeadingOf(const Step& step) {
  std::string name(grade::FactsOf(step.kind).name);
  name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
  return name;
}

std::string SentenceOf(const Layout& layout, const Step& step) {
  const Technique* const technique = TechniqueOf(step.kind);
  if (technique == nullptr) return LeftoversSentence(layout, step);
  return technique->sentence(HintOf(layout, step));
}

}  // namespace tessel::explain
