// Why steps are right, and what follows from them.
#include <algorithm>

#include "core/names.h"
#include "explain/listing.h"
#include "explain/sentence.h"
#include "explain/step_houses.h"
#include "hints/wording.h"

namespace tessel::explain {

namespace {

using grade::Step;
using grade::StepKind;

struct InLayout {
  const Layout& layout;
  const Step& step;

  std::string House(std::size_t k) const { return NameOf(HousesOf(layout, step)[k]); }
  std::string Digit() const { return std::to_string(LowestDigitOf(step.digits)); }
};

CellSet LosingCells(const Step& step) {
  CellSet cells;
  for (const grade::Removal& removal : step.removals) cells = cells | CellSet::Of(removal.cell);
  return cells;
}

std::string HiddenSingleReason(const InLayout& in) {
  std::vector<std::string> names;
  for (const House& house : HousesOf(in.layout, in.step)) names.push_back(NameOf(house));
  return in.Digit() + " has no other place in " + Listed(names);
}

std::string PointingReason(const InLayout& in) {
  return "Wherever " + in.Digit() + " stands in " + in.House(0) + ", at " +
         NamesOf(in.step.cells, "or") + ", it is seen from " + NamesOf(LosingCells(in.step));
}

std::string ClaimingReason(const InLayout& in) {
  return "In " + in.House(0) + ", " + in.Digit() + " must stand at " +
         NamesOf(in.step.cells, "or") + ", and so within " + in.House(1);
}

std::string NakedSetReason(const InLayout& in) {
  return "In " + in.House(0) + ", the cells " + NamesOf(in.step.cells) + " take up " +
         NamesOf(in.step.digits);
}

std::string HiddenSetReason(const InLayout& in) {
  return "In " + in.House(0) + ", " + NamesOf(in.step.digits) + " have no other places than " +
         NamesOf(in.step.cells);
}

std::string FishReason(const InLayout& in) {
  const std::vector<House> lines = HousesOf(in.layout, in.step);
  const bool rows = lines[0].kind == HouseKind::kRow;
  return "In " + NamesOf(lines) + ", " + in.Digit() + " must stand at " +
         NamesOf(in.step.cells, "or") + ", once in each of the crossing " +
         (rows ? "columns" : "rows");
}

std::string LeftoversReason(const InLayout& in) {
  const Leftovers left = LeftoversOf(in.layout, in.step);
  const std::string lines = NameOf(left.lines[0].kind) + "s";
  const CellSet bare = in.step.inLines ? left.ofLines : left.ofCages;
  return "The cells of the " + lines + " outside the cages, " + NamesOf(left.ofLines) +
         ", hold the same digits as the cells of the cages outside the " + lines + ", " +
         NamesOf(left.ofCages) + ". " + in.Digit() + " has no place at " + NamesOf(bare, "or");
}

// The digits that cells lose, each time with all cells that lose just these.
std::vector<std::pair<Mask, CellSet>> CellsThatLose(const Step& step) {
  std::vector<std::pair<Mask, CellSet>> groups;
  for (const auto& [cell, digits] : step.removals) {
    const auto same = std::ranges::find(groups, digits, &std::pair<Mask, CellSet>::first);
    if (same == groups.end()) {
      groups.emplace_back(digits, CellSet::Of(cell));
    } else {
      same->second = same->second | CellSet::Of(cell);
    }
  }
  return groups;
}

}  // namespace

std::string ReasonOf(const Layout& layout, const Step& step) {
  const InLayout in{layout, step};
  switch (step.kind) {
    case StepKind::kNakedSingle:
      return "No other digit is left for this cell";
    case StepKind::kHiddenSingle:
      return HiddenSingleReason(in);
    case StepKind::kPointing:
      return PointingReason(in);
    case StepKind::kClaiming:
      return ClaimingReason(in);
    case StepKind::kNakedPair:
    case StepKind::kNakedTriple:
    case StepKind::kNakedQuad:
      return NakedSetReason(in);
    case StepKind::kHiddenPair:
    case StepKind::kHiddenTriple:
      return HiddenSetReason(in);
    case StepKind::kXWing:
    case StepKind::kSwordFish:
      return FishReason(in);
    case StepKind::kTwoLineLeftovers:
    case StepKind::kThreeLineLeftovers:
    case StepKind::kFourLineLeftovers:
      return LeftoversReason(in);
  }
  return {};
}

std::string OutcomeOf(const Step& step) {
  if (step.placement) {
    return CellName(step.placement->cell) + " is " + std::to_string(step.placement->digit);
  }
  std::string outcome;
  for (const auto& [digits, cells] : CellsThatLose(step)) {
    outcome += (outcome.empty() ? "" : "; ") + NamesOf(digits) +
               (CandidateCount(digits) == 1 ? " goes from " : " go from ") + NamesOf(cells);
  }
  return outcome;
}

}  // namespace tessel::explain
