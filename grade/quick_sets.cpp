// Naked and hidden pairs, triples and naked quads.
//
// The candidates of a house's cells, and the places of its digits, are the same square table read
// by rows or by columns; both searches want some masks that together hold as many bits.
#include "grade/bits.h"
#include "grade/quick_steps.h"

namespace tessel::grade {

namespace {

using NineMasks = std::array<Mask, kSide>;

struct Chosen {
  Mask which = 0;   // of the nine masks
  Mask united = 0;  // all their bits
};

// Calls `visit` with every choice of `size` of the masks that together hold `size` bits; empty
// masks are never chosen. A choice that already holds more bits is not pursued.
template <typename Visit>
void ForEachTight(const NineMasks& masks, int size, Chosen chosen, int from, const Visit& visit) {
  const int count = CountOf(chosen.which);
  if (count == size) {
    if (CountOf(chosen.united) == size) visit(chosen);
    return;
  }
  for (int k = from; k + size - count <= kSide; ++k) {
    const auto united = static_cast<Mask>(chosen.united | masks[k]);
    if (masks[k] == 0 || CountOf(united) > size) continue;
    const auto which = static_cast<Mask>(chosen.which | 1 << k);
    ForEachTight(masks, size, {which, united}, k + 1, visit);
  }
}

NineMasks CandidatesIn(const QuickPosition& position, const HouseCells& cells) {
  NineMasks masks;
  for (int k = 0; k < kSide; ++k) masks[k] = position.CandidatesAt(cells[k]);
  return masks;
}

NineMasks PlacesIn(const QuickPosition& position, int house) {
  NineMasks masks;
  for (int digit = 0; digit < kSide; ++digit) masks[digit] = position.PlacesIn(house, digit);
  return masks;
}

int OpenCells(const NineMasks& candidates) {
  int open = 0;
  for (const Mask mask : candidates) open += mask != 0 ? 1 : 0;
  return open;
}

// In a house of six open cells a naked triple is a hidden one, too, which is seen in full; else
// only sets with a digit that all their cells hold are seen, where it can go elsewhere.
bool IsSeen(const NineMasks& candidates, const Chosen& set, bool inFull) {
  int common = inFull ? set.united : kAllCandidates;
  int others = 0;
  for (int k = 0; k < kSide; ++k) {
    if ((set.which >> k & 1) == 0) {
      others |= candidates[k];
    } else if (!inFull) {
      common &= candidates[k];
    }
  }
  return (others & common) != 0;
}

void AddNakedSetsOf(Removals& removals, const QuickPosition& position, const HouseCells& cells,
                    int size) {
  const NineMasks candidates = CandidatesIn(position, cells);
  const int open = OpenCells(candidates);
  if (open < 2 * size) return;
  const bool inFull = size == 3 && open == 6;
  ForEachTight(candidates, size, {}, 0, [&](const Chosen& set) {
    if (!IsSeen(candidates, set, inFull)) return;
    ++removals.steps;
    ForEachBit(Without(kAllCandidates, set.which), [&](int k) {
      if ((candidates[k] & set.united) != 0) removals.Add(cells[k], set.united);
    });
  });
}

void AddHiddenSetsOf(Removals& removals, const QuickPosition& position, const House& house,
                     const NineMasks& places, int size) {
  const NineMasks candidates = CandidatesIn(position, house.cells);
  if (OpenCells(candidates) <= 2 * size) return;
  ForEachTight(places, size, {}, 0, [&](const Chosen& set) {
    const Mask others = Without(kAllCandidates, set.which);
    bool removes = false;
    ForEachBit(set.united, [&](int k) {
      if ((candidates[k] & others) == 0) return;
      removals.Add(house.cells[k], others);
      removes = true;
    });
    removals.steps += removes ? 1 : 0;
  });
}

}  // namespace

Removals QuickNakedSets(int size, const QuickPosition& position) {
  Removals removals;
  for (const House& house : position.Shape().AllHouses()) {
    AddNakedSetsOf(removals, position, house.cells, size);
  }
  return removals;
}

Removals QuickHiddenSets(int size, const QuickPosition& position) {
  Removals removals;
  const Houses& houses = position.Shape().AllHouses();
  for (int house = 0; house < 3 * kSide; ++house) {
    AddHiddenSetsOf(removals, position, houses[house], PlacesIn(position, house), size);
  }
  return removals;
}

}  // namespace tessel::grade
