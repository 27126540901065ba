// Naked and hidden pairs, triples and quads.
#include <algorithm>
#include <bit>
#include <tuple>

#include "grade/step_searches.h"

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

struct HeldDigits {
  int byAny = 0;
  int byAll = kAllCandidates;
};

HeldDigits DigitsIn(const CandidateGrid& position, CellSet cells) {
  HeldDigits held;
  ForEach(cells, [&](int cell) {
    held.byAny |= position.candidates[cell];
    held.byAll &= position.candidates[cell];
  });
  return held;
}

CellSet ChosenCells(const House& house, unsigned chosen) {
  CellSet cells;
  for (; chosen != 0; chosen &= chosen - 1) {
    cells = cells | CellSet::Of(house.cells[std::countr_zero(chosen)]);
  }
  return cells;
}

std::optional<CellsAndDigits> NakedSetOf(const OpenHouse& open, const CandidateGrid& position,
                                         CellSet cells) {
  const HeldDigits held = DigitsIn(position, cells);
  if (!(cells - open.cells).Empty()) return std::nullopt;
  if (std::popcount(static_cast<unsigned>(held.byAny)) != cells.Count()) return std::nullopt;
  if ((DigitsIn(position, open.cells - cells).byAny & held.byAll) == 0) return std::nullopt;
  return CellsAndDigits{cells, static_cast<Mask>(held.byAny), true};
}

std::optional<CellsAndDigits> HiddenSetOf(const OpenHouse& open, const CandidateGrid& position,
                                          Mask digits) {
  if (Without(digits, open.digits) != 0) return std::nullopt;
  CellsAndDigits set{{}, digits, false};
  ForEach(open.cells, [&](int cell) {
    if ((position.candidates[cell] & digits) != 0) set.cells = set.cells | CellSet::Of(cell);
  });
  if (set.Size() != std::popcount(static_cast<unsigned>(digits))) return std::nullopt;
  if ((DigitsIn(position, set.cells).byAny & ~digits) == 0) return std::nullopt;
  return set;
}

// The smaller of the set and its counterpart among the other open cells and digits.
CellsAndDigits Smaller(const OpenHouse& open, const CellsAndDigits& set) {
  const CellsAndDigits rest{open.cells - set.cells, Without(open.digits, set.digits), !set.naked};
  const auto order = [](const CellsAndDigits& s) { return std::tuple(s.Size(), !s.naked); };
  return order(rest) < order(set) ? rest : set;
}

std::vector<CellsAndDigits> SetsIn(const OpenHouse& open, const CandidateGrid& position) {
  std::vector<CellsAndDigits> sets;
  const auto add = [&](const std::optional<CellsAndDigits>& found) {
    if (!found) return;
    const CellsAndDigits set = Smaller(open, *found);
    if (std::ranges::find(sets, set) == sets.end()) sets.push_back(set);
  };
  for (unsigned chosen = 1; chosen <= unsigned{kAllCandidates}; ++chosen) {
    const int size = std::popcount(chosen);
    if (size < 2 || size > 4) continue;
    add(NakedSetOf(open, position, ChosenCells(open.house, chosen)));
    if (size < 4) add(HiddenSetOf(open, position, static_cast<Mask>(chosen)));
  }
  return sets;
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

}  // namespace

Steps SetSteps(StepKind kind, const Layout& layout, const CandidateGrid& position) {
  Steps steps;
  for (const House& house : layout.AllHouses()) {
    const OpenHouse open = OpenPartOf(house, position);
    for (const CellsAndDigits& set : SetsIn(open, position)) {
      if (KindOf(set) == kind) steps.push_back(StepOf(kind, open, position, set));
    }
  }
  return steps;
}

}  // namespace tessel::grade
