// X-Wing and SwordFish.
#include <bit>

#include "grade/step_searches.h"

namespace tessel::grade {

namespace {

using Lines = std::span<const House, kSide>;

CellSet CellsOfLines(Lines lines, unsigned chosen) {
  CellSet cells;
  for (; chosen != 0; chosen &= chosen - 1) {
    cells = cells | CellsOf(lines[static_cast<std::size_t>(std::countr_zero(chosen))]);
  }
  return cells;
}

// The lines of `lines` that have some of the cells, as bits.
unsigned Touched(Lines lines, CellSet cells) {
  unsigned touched = 0;
  for (const House& line : lines) {
    if (!(cells & CellsOf(line)).Empty()) touched |= 1U << line.index;
  }
  return touched;
}

void AppendNames(std::vector<HouseName>& names, HouseKind kind, unsigned chosen) {
  for (; chosen != 0; chosen &= chosen - 1) names.push_back({kind, std::countr_zero(chosen)});
}

// A strict fish: `size` lines, each with the digit in exactly the same `size` places.
std::optional<Step> FishOn(const Layout& layout, const CandidateGrid& position, HouseKind kind,
                           unsigned chosen, int digit) {
  const HouseKind across = kind == HouseKind::kRow ? HouseKind::kColumn : HouseKind::kRow;
  const int size = std::popcount(chosen);
  const CellSet lines = CellsOfLines(layout.HousesOf(kind), chosen);
  const CellSet candidates = CandidatesOf(position, digit);
  const CellSet places = candidates & lines;
  const unsigned crossed = Touched(layout.HousesOf(across), places);
  if (std::popcount(crossed) != size || places.Count() != size * size) return std::nullopt;
  Step step{size == 2 ? StepKind::kXWing : StepKind::kSwordFish, {}, places, BitOf(digit)};
  AppendNames(step.houses, kind, chosen);
  AppendNames(step.houses, across, crossed);
  const CellSet crossing = CellsOfLines(layout.HousesOf(across), crossed);
  step.removals = RemovalsOf(position, crossing - lines, BitOf(digit));
  return step;
}

}  // namespace

Steps FishSteps(int size, const Layout& layout, const CandidateGrid& position) {
  Steps steps;
  for (const HouseKind kind : kLineKinds) {
    for (unsigned chosen = 0; chosen <= unsigned{kAllCandidates}; ++chosen) {
      if (std::popcount(chosen) != size) continue;
      for (int digit = 1; digit <= kSide; ++digit) {
        auto step = FishOn(layout, position, kind, chosen, digit);
        if (step && !step->removals.empty()) steps.push_back(*std::move(step));
      }
    }
  }
  return steps;
}

}  // namespace tessel::grade
