#include "explain/step_picture.h"

#include "explain/step_houses.h"

namespace tessel::explain {

namespace {

using grade::Step;
using grade::StepKind;
using paper::BoardPicture;

CellSet FilledCells(const Grid& digits) {
  CellSet filled;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (digits[cell] != 0) filled = filled | CellSet::Of(cell);
  }
  return filled;
}

// The lines that cross the fish where it stands.
CellSet CrossingLines(const Layout& layout, const Step& step) {
  const bool rows = step.houses.front().kind == HouseKind::kRow;
  CellSet crossing;
  for (const House& line : layout.HousesOf(rows ? HouseKind::kColumn : HouseKind::kRow)) {
    const CellSet cells = CellsOf(line);
    if (!(cells & step.cells).Empty()) crossing = crossing | cells;
  }
  return crossing;
}

std::vector<CellSet> AreasOf(const Layout& layout, const Step& step) {
  if (IsLeftovers(step.kind)) {
    const Leftovers left = LeftoversOf(layout, step);
    if (step.inLines) return {left.ofLines, left.ofCages};
    return {left.ofCages, left.ofLines};
  }
  const std::vector<House> houses = HousesOf(layout, step);
  if (IsFish(step.kind)) return {CellsOf(houses), CrossingLines(layout, step)};
  std::vector<CellSet> areas;
  for (const House& house : houses) areas.push_back(CellsOf(house));
  return areas;
}

void MarkReasons(BoardPicture& picture, const Step& step) {
  picture.highlighted = step.cells;
  ForEach(step.cells, [&](int cell) {
    picture.reasons[cell] = static_cast<Mask>(picture.marks[cell] & step.digits);
  });
}

}  // namespace

BoardPicture PictureOf(const Explanation& explanation, const grade::CandidateGrid& position) {
  return {.layout = explanation.layout,
          .digits = position.digits,
          .givens = FilledCells(explanation.givens),
          .marks = position.candidates};
}

BoardPicture PictureBefore(const Explanation& explanation, std::size_t k) {
  const auto& [step, before] = explanation.steps[k];
  BoardPicture picture = PictureOf(explanation, before);
  picture.captions = true;
  picture.areas = AreasOf(explanation.layout, step);
  if (IsLeftovers(step.kind)) {
    picture.highlighted = picture.areas.front();  // where there is no place: nothing to ring
  } else {
    MarkReasons(picture, step);
  }
  for (const auto& [cell, digits] : step.removals) picture.struck[cell] = digits;
  return picture;
}

BoardPicture PictureAfter(const Explanation& explanation, std::size_t k) {
  BoardPicture picture = PictureOf(explanation, explanation.After(k));
  const Step& step = explanation.steps[k].step;
  if (step.placement) picture.placed = CellSet::Of(step.placement->cell);
  return picture;
}

}  // namespace tessel::explain
