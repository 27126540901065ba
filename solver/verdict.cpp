#include "solver/verdict.h"

#include "solver/diagnosis.h"

namespace tessel::solver {

namespace {

std::string HouseName(const House& house) {
  const std::string number = std::to_string(house.index + 1);
  switch (house.kind) {
    case HouseKind::kRow:
      return "row " + number;
    case HouseKind::kColumn:
      return "column " + number;
    case HouseKind::kCage:
      return "cage " + number;
  }
  return "";
}

std::string WhyNone(const Puzzle& puzzle, CellNamer nameOf) {
  if (const auto clash = FindClash(puzzle.layout, puzzle.givens)) {
    return "none: " + std::to_string(clash->digit) + " is given twice in " +
           HouseName(clash->house) + ", " + nameOf(clash->first) + " and " + nameOf(clash->second);
  }
  if (const auto cell = FindCellWithoutDigit(puzzle.layout, puzzle.givens)) {
    return "none: no digit is left for " + nameOf(*cell);
  }
  return "none, found by search";
}

std::string Differences(const Grid& a, const Grid& b, CellNamer nameOf) {
  std::string text;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (a[cell] == b[cell]) continue;
    text += (text.empty() ? "" : ", ") + nameOf(cell) + " is " + std::to_string(a[cell]) + " or " +
            std::to_string(b[cell]);
  }
  return text;
}

}  // namespace

std::string VerdictOf(const Puzzle& puzzle, const std::vector<Grid>& completions,
                      CellNamer nameOf) {
  if (completions.empty()) return WhyNone(puzzle, nameOf);
  if (completions.size() == 1) return "one";
  return "several: " + Differences(completions[0], completions[1], nameOf);
}

}  // namespace tessel::solver
