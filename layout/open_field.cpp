#include "layout/open_field.h"

namespace tessel {

CellSet UnclaimedCells(const GameState& state) {
  CellSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (state.CageOfCell[cell] == 0) cells = cells | CellSet::Of(cell);
  }
  return cells;
}

// The look-ahead goes no further than two regions and remainders by nine, on purpose: it does not
// ask whether the cage touches the region that it must finish in, nor about mirrors to come.
bool OpenField(CellSet unclaimed, int CellsToCover, int CurrentCage, int /*LastAddedCell*/) {
  const int empty = (kSide - CurrentCage) * kSide + CellsToCover;
  if (empty == 0) return true;
  const CellSet first = FirstRegionOf(unclaimed);
  if (first == unclaimed) return true;
  const CellSet second = FirstRegionOf(unclaimed - first);
  if ((first | second) != unclaimed) return false;
  const int size1 = first.Count();
  const int size2 = empty - size1;
  return size1 % kSide <= CellsToCover || size2 % kSide <= CellsToCover;
}

}  // namespace tessel
