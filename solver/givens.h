// Questions about a puzzle whose solution is known: may this given go?
#pragma once

#include "solver/search.h"

namespace tessel::solver {

// Gives the cell its digit of the solution again; it must have been taken out.
template <typename Lanes>
void PutBack(const Tables& tables, Givens& givens, int cell) {
  const int digit = givens.digitAt[cell];
  givens.cellsOf[digit][givens.sizes[digit]++] = static_cast<std::uint8_t>(cell);
  Fill<Lanes>(tables, givens.level, cell, digit);
}

// Makes all 81 digits 1..9 of a complete solution the givens.
template <typename Lanes>
void Give(const Tables& tables, const std::uint8_t* solution, Givens& givens) {
  Clear<Lanes>(tables, givens.level);
  for (std::uint8_t& size : givens.sizes) size = 0;
  for (int cell = 0; cell < kCellCount; ++cell) {
    givens.digitAt[cell] = static_cast<std::uint8_t>(solution[cell] - 1);
    PutBack<Lanes>(tables, givens, cell);
  }
}

// Where the digit of `cell` may stand beside its other givens.
template <typename Lanes>
Lanes PlacesWithout(const Tables& tables, const Givens& givens, int cell) {
  const int digit = givens.digitAt[cell];
  Lanes places = Lanes::Load(tables.everywhere);
  for (int i = 0; i < givens.sizes[digit]; ++i) {
    const int other = givens.cellsOf[digit][i];
    if (other != cell) places = places - Lanes::Load(tables.withPeers[other]);
  }
  return places;
}

// Takes the given of a cell out: its digit may stand there again, and in the peers that no other
// given of that digit forbids.
template <typename Lanes>
void Take(const Tables& tables, Givens& givens, int cell) {
  const int digit = givens.digitAt[cell];
  Level& level = givens.level;
  PlacesWithout<Lanes>(tables, givens, cell).Store(level.places[digit]);
  (Lanes::Load(level.open) | Lanes::Load(tables.only[cell])).Store(level.open);
  level.done[digit] &= ~tables.housesOf[cell];
  std::uint8_t* const cells = givens.cellsOf[digit];
  const int last = --givens.sizes[digit];
  for (int i = 0; i < last; ++i) {
    if (cells[i] == cell) cells[i] = cells[last];
  }
}

// Whether the givens leave the cell a digit besides its own.
inline bool AdmitsOtherDigit(const Givens& givens, int cell) {
  unsigned others = 0;
  for (int digit = 0; digit < kDigits; ++digit) {
    others |= digit == givens.digitAt[cell] ? 0U : givens.level.places[digit].lane[RowOf(cell)];
  }
  return (others >> ColumnOf(cell) & 1U) != 0;
}

// Two looks settle most questions: no other digit fits the cell, or one of its houses has no other
// place for its own digit. For the rest, the digit is forbidden there and a completion searched.
template <typename Lanes>
bool HasOther(const Tables& tables, Workspace& work, const Givens& givens, int cell) {
  if (!AdmitsOtherDigit(givens, cell)) return false;
  const int digit = givens.digitAt[cell];
  const Lanes itself = Lanes::Load(tables.only[cell]);
  const Lanes open = Lanes::Load(givens.level.open) | itself;
  const Lanes places = PlacesWithout<Lanes>(tables, givens, cell) & open;
  if ((places.AtMostOne() & tables.housesOf[cell]) != 0) return false;
  Level& level = work.levels[0];
  CopyLevel<Lanes>(givens.level, level);
  (places - itself).Store(level.places[digit]);
  open.Store(level.open);
  level.done[digit] &= ~tables.housesOf[cell];
  return Search<Lanes>(tables, work, Request{}).Run().solutions != 0;
}

// The functions above, and the search, for one width of vectors.
template <typename Lanes>
constexpr Kernel KernelOf() {
  return {
      .clear = Clear<Lanes>,
      .place = Place<Lanes>,
      .placeSingles = PlaceSingles<Lanes>,
      .removeLocked = RemoveLocked<Lanes>,
      .search = [](const Tables& tables, Workspace& work,
                   const Request& request) { return Search<Lanes>(tables, work, request).Run(); },
      .give = Give<Lanes>,
      .hasOther = HasOther<Lanes>,
      .take = Take<Lanes>,
      .putBack = PutBack<Lanes>,
  };
}

}  // namespace tessel::solver
