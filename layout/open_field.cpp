#include "layout/open_field.h"

namespace tessel {

// The look-ahead goes no further than two regions and remainders by nine, on purpose: it does not
// ask whether the cage touches the region that it must finish in, nor about mirrors to come.
bool OpenField(const Regions& unclaimed, int CellsToCover, int CurrentCage, int /*LastAddedCell*/) {
  const int empty = (kSide - CurrentCage) * kSide + CellsToCover;
  if (empty == 0 || unclaimed.second.Empty()) return true;
  if (!unclaimed.others.Empty()) return false;
  const int size1 = unclaimed.first.Count();
  const int size2 = empty - size1;
  return size1 % kSide <= CellsToCover || size2 % kSide <= CellsToCover;
}

}  // namespace tessel
