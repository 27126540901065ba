#include "explain/step_houses.h"

namespace tessel::explain {

std::vector<House> HousesOf(const Layout& layout, const grade::Step& step) {
  std::vector<House> houses;
  for (const auto& [kind, index] : step.houses) houses.push_back(layout.HousesOf(kind)[index]);
  return houses;
}

Leftovers LeftoversOf(const Layout& layout, const grade::Step& step) {
  Leftovers in;
  for (const House& house : HousesOf(layout, step)) {
    (house.kind == HouseKind::kCage ? in.cages : in.lines).push_back(house);
  }
  const CellSet lines = CellsOf(in.lines);
  const CellSet cages = CellsOf(in.cages);
  in.ofLines = lines - cages;
  in.ofCages = cages - lines;
  return in;
}

bool IsLeftovers(grade::StepKind kind) {
  using enum grade::StepKind;
  return kind == kTwoLineLeftovers || kind == kThreeLineLeftovers || kind == kFourLineLeftovers;
}

bool IsFish(grade::StepKind kind) {
  return kind == grade::StepKind::kXWing || kind == grade::StepKind::kSwordFish;
}

CellSet CellsOf(const House& house) {
  CellSet cells;
  for (const int cell : house.cells) cells = cells | CellSet::Of(cell);
  return cells;
}

CellSet CellsOf(const std::vector<House>& houses) {
  CellSet cells;
  for (const House& house : houses) cells = cells | CellsOf(house);
  return cells;
}

}  // namespace tessel::explain
