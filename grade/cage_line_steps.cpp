// Steps between cages and lines: pointing, claiming and the Law of Leftovers.
#include <bit>

#include "grade/step_searches.h"

namespace tessel::grade {

namespace {

CellSet LinesThrough(const Layout& layout, int cell) {
  return CellsOf(layout.HousesOf(HouseKind::kRow)[RowOf(cell)]) |
         CellsOf(layout.HousesOf(HouseKind::kColumn)[ColumnOf(cell)]);
}

// The cells that share a row or a column with each of `cells`.
CellSet SeenByAll(const Layout& layout, CellSet cells) {
  CellSet seen = kAllCells;
  ForEach(cells, [&](int cell) { seen = seen & LinesThrough(layout, cell); });
  return seen;
}

void AddIfUseful(Steps& steps, Step step) {
  if (!step.removals.empty()) steps.push_back(std::move(step));
}

Step PointingStep(const Layout& layout, const CandidateGrid& position, const House& cage,
                  int digit) {
  const CellSet places = CandidatesOf(position, digit) & CellsOf(cage);
  Step step{StepKind::kPointing, {HouseNameOf(cage)}, places, BitOf(digit)};
  if (places.Empty()) return step;
  step.removals = RemovalsOf(position, SeenByAll(layout, places) - CellsOf(cage), BitOf(digit));
  return step;
}

Step ClaimingStep(const Layout& layout, const CandidateGrid& position, const House& line,
                  int digit) {
  const CellSet places = CandidatesOf(position, digit) & CellsOf(line);
  Step step{StepKind::kClaiming, {HouseNameOf(line)}, places, BitOf(digit)};
  if (places.Empty()) return step;
  const House& cage = layout.HousesOf(HouseKind::kCage)[layout.CageOf(places.First()) - 1];
  step.houses.push_back(HouseNameOf(cage));
  if (!(places - CellsOf(cage)).Empty()) return step;
  step.removals = RemovalsOf(position, CellsOf(cage) - CellsOf(line), BitOf(digit));
  return step;
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

Steps PointingSteps(const Layout& layout, const CandidateGrid& position) {
  Steps steps;
  for (int digit = 1; digit <= kSide; ++digit) {
    for (const House& cage : layout.HousesOf(HouseKind::kCage)) {
      AddIfUseful(steps, PointingStep(layout, position, cage, digit));
    }
  }
  return steps;
}

Steps ClaimingSteps(const Layout& layout, const CandidateGrid& position) {
  Steps steps;
  for (const HouseKind kind : kLineKinds) {
    for (const House& line : layout.HousesOf(kind)) {
      for (int digit = 1; digit <= kSide; ++digit) {
        AddIfUseful(steps, ClaimingStep(layout, position, line, digit));
      }
    }
  }
  return steps;
}

Steps LeftoverSteps(int lines, const Layout& layout, const CandidateGrid& position) {
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
