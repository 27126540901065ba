#include "solver/diagnosis.h"

namespace tessel::solver {

namespace {

std::optional<Clash> ClashIn(const House& house, const Grid& givens) {
  for (std::size_t i = 0; i < house.cells.size(); ++i) {
    for (std::size_t j = i + 1; j < house.cells.size(); ++j) {
      const int digit = givens[house.cells[i]];
      if (digit == 0 || digit != givens[house.cells[j]]) continue;
      return Clash{digit, house, house.cells[i], house.cells[j]};
    }
  }
  return std::nullopt;
}

Mask DigitsIn(CellSet cells, const Grid& givens) {
  Mask digits = 0;
  ForEach(cells, [&](int cell) {
    if (givens[cell] != 0) digits = static_cast<Mask>(digits | BitOf(givens[cell]));
  });
  return digits;
}

}  // namespace

std::optional<Clash> FindClash(const Layout& layout, const Grid& givens) {
  for (const House& house : layout.AllHouses()) {
    if (const auto clash = ClashIn(house, givens)) return clash;
  }
  return std::nullopt;
}

std::optional<int> FindCellWithoutDigit(const Layout& layout, const Grid& givens) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (givens[cell] == 0 && DigitsIn(layout.PeersOf(cell), givens) == kAllCandidates) return cell;
  }
  return std::nullopt;
}

std::vector<int> FindNeedlessGivens(Solver& solver, const Grid& givens, const Grid& solution) {
  solver.GiveAll(solution);
  std::vector<int> needless;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (givens[cell] == 0) solver.TakeOut(cell);
  }
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (givens[cell] != 0 && !solver.HasOtherCompletion(cell)) needless.push_back(cell);
  }
  return needless;
}

}  // namespace tessel::solver
