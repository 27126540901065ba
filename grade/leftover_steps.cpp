// The Law of Leftovers.
#include <bit>
#include <cassert>

#include "grade/step_searches.h"

namespace tessel::grade {

namespace {

void AddIfUseful(Steps& steps, Step step) {
  if (!step.removals.empty()) steps.push_back(std::move(step));
}

// `count` adjacent lines and as many cages.
struct Band {
  StepKind kind = StepKind::kTwoLineLeftovers;
  std::vector<HouseName> houses;
  CellSet lines;
  CellSet cages;
};

StepKind LeftoversOf(int lines) {
  if (lines == 4) return StepKind::kFourLineLeftovers;
  return lines == 3 ? StepKind::kThreeLineLeftovers : StepKind::kTwoLineLeftovers;
}

Band BandOf(std::span<const House> lines, std::span<const House> cages, unsigned chosen) {
  Band band{LeftoversOf(static_cast<int>(lines.size())), {}, {}, {}};
  for (const House& line : lines) {
    band.houses.push_back(HouseNameOf(line));
    band.lines = band.lines | CellsOf(line);
  }
  for (const House& cage : cages) {
    if ((chosen >> cage.index & 1) == 0) continue;
    band.houses.push_back(HouseNameOf(cage));
    band.cages = band.cages | CellsOf(cage);
  }
  return band;
}

// At most one of the two directions removes anything: with both sides bare of the digit, neither
// has a candidate to lose.
void AddLeftovers(Steps& steps, const CandidateGrid& position, const Band& band, int digit,
                  CellSet places) {
  const CellSet ofLines = band.lines - band.cages;
  const CellSet ofCages = band.cages - band.lines;
  const auto add = [&](CellSet bare, CellSet other, CellSet holding, bool inLines) {
    if (!(places & bare).Empty()) return;
    Step step{band.kind, band.houses, places & holding, BitOf(digit), inLines};
    step.removals = RemovalsOf(position, other, BitOf(digit));
    AddIfUseful(steps, std::move(step));
  };
  add(ofLines, ofCages, band.lines, true);
  add(ofCages, ofLines, band.cages, false);
}

using PlacesByDigit = std::array<CellSet, kSide>;

PlacesByDigit PlacesByDigitOf(const CandidateGrid& position) {
  PlacesByDigit places;
  for (int digit = 1; digit <= kSide; ++digit) places[digit - 1] = PlacesOf(position, digit);
  return places;
}

void AddLeftoversOfBand(Steps& steps, const Layout& layout, const CandidateGrid& position,
                        const PlacesByDigit& places, std::span<const House> lines) {
  for (unsigned chosen = 0; chosen <= unsigned{kAllCandidates}; ++chosen) {
    if (std::popcount(chosen) != static_cast<int>(lines.size())) continue;
    const Band band = BandOf(lines, layout.HousesOf(HouseKind::kCage), chosen);
    for (int digit = 1; digit <= kSide; ++digit) {
      AddLeftovers(steps, position, band, digit, places[digit - 1]);
    }
  }
}

}  // namespace

Steps LeftoverSteps(int lines, const Layout& layout, const CandidateGrid& position) {
  assert(lines >= 1 && lines <= 4);
  Steps steps;
  const PlacesByDigit places = PlacesByDigitOf(position);
  for (const HouseKind kind : kLineKinds) {
    for (int first = 0; first + lines <= kSide; ++first) {
      const auto band =
          std::span<const House>(layout.HousesOf(kind))
              .subspan(static_cast<std::size_t>(first), static_cast<std::size_t>(lines));
      AddLeftoversOfBand(steps, layout, position, places, band);
    }
  }
  return steps;
}

}  // namespace tessel::grade
