// Naked and hidden pairs, triples and quads.
#include <algorithm>
#include <tuple>

#include "grade/step_searches.h"
#include "hints/ladder.h"

namespace tessel::grade {

namespace {

// Some open cells of a house and as many digits: the cells hold no other digits (naked), or the
// digits have no other places (hidden).
struct CellsAndDigits {
  CellSet cells;
  Mask digits = 0;
  bool naked = true;

  int Size() const { return cells.Count(); }

  friend bool operator==(const CellsAndDigits&, const CellsAndDigits&) = default;
};

struct OpenHouse {
  const House& house;
  CellSet cells;    // the open ones
  Mask digits = 0;  // not yet written in it
};

OpenHouse OpenPartOf(const House& house, const CandidateGrid& position) {
  OpenHouse open{house, {}, kAllCandidates};
  for (const int cell : house.cells) {
    const int digit = position.digits[cell];
    if (digit == 0) {
      open.cells = open.cells | CellSet::Of(cell);
    } else {
      open.digits = Without(open.digits, BitOf(digit));
    }
  }
  return open;
}

// The smaller of the set and its counterpart among the other open cells and digits.
CellsAndDigits Smaller(const OpenHouse& open, const CellsAndDigits& set) {
  const CellsAndDigits rest{open.cells - set.cells, Without(open.digits, set.digits), !set.naked};
  const auto order = [](const CellsAndDigits& s) { return std::tuple(s.Size(), !s.naked); };
  return order(rest) < order(set) ? rest : set;
}

// Nothing for a set of one: that is a single.
std::optional<StepKind> KindOf(const CellsAndDigits& set) {
  if (set.Size() == 2) return set.naked ? StepKind::kNakedPair : StepKind::kHiddenPair;
  if (set.Size() == 3) return set.naked ? StepKind::kNakedTriple : StepKind::kHiddenTriple;
  if (set.Size() == 4) return StepKind::kNakedQuad;
  return std::nullopt;
}

Step StepOf(StepKind kind, const OpenHouse& open, const CandidateGrid& position,
            const CellsAndDigits& set) {
  Step step{kind, {HouseNameOf(open.house)}, set.cells, set.digits};
  step.removals = set.naked ? RemovalsOf(position, open.cells - set.cells, set.digits)
                            : RemovalsOf(position, set.cells, Without(kAllCandidates, set.digits));
  return step;
}

constexpr std::array kNakedSets{&kNakedPair, &kNakedTriple, &kNakedQuad};
constexpr std::array kHiddenSets{&kHiddenPair, &kHiddenTriple};

// A set can be found as a naked and as a hidden one.
void AddOnce(Steps& steps, Step step) {
  if (std::ranges::find(steps, step) == steps.end()) steps.push_back(std::move(step));
}

}  // namespace

Steps SetSteps(StepKind kind, const Layout& layout, const CandidateGrid& position) {
  Steps steps;
  const auto add = [&](const Technique& technique, bool naked) {
    for (const Hint& hint : AllHints(technique, {layout, position.digits, position.candidates})) {
      const OpenHouse open = OpenPartOf(hint.houses[0], position);
      const CellsAndDigits set = Smaller(open, {hint.cells, hint.digits, naked});
      if (KindOf(set) == kind) AddOnce(steps, StepOf(kind, open, position, set));
    }
  };
  for (const Technique* technique : kNakedSets) add(*technique, true);
  for (const Technique* technique : kHiddenSets) add(*technique, false);
  return steps;
}

}  // namespace tessel::grade
