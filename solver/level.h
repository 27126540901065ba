// Steps on single levels.
#pragma once

#include "solver/kernel.h"

namespace tessel::solver {

inline constexpr int kDigits = kSide;

// Makes the level an empty board.
template <typename Lanes>
void Clear(const Tables& tables, Level& level) {
  const Lanes everywhere = Lanes::Load(tables.everywhere);
  everywhere.Store(level.open);
  for (int digit = 0; digit < kDigits; ++digit) {
    everywhere.Store(level.places[digit]);
    level.done[digit] = 0;
  }
}

// Makes `to` what `from` is, register by register.
template <typename Lanes>
[[gnu::always_inline]] inline void CopyLevel(const Level& from, Level& to) {
  for (int digit = 0; digit < kDigits; ++digit) {
    Lanes::Load(from.places[digit]).Store(to.places[digit]);
    to.done[digit] = from.done[digit];
  }
  Lanes::Load(from.open).Store(to.open);
}

// Bit d: digit d may stand in the cell. The places must have been met with the open cells.
[[gnu::always_inline]] inline std::uint32_t CandidatesAt(const Level& level, int row, int column) {
  std::uint32_t candidates = 0;
  for (int digit = 0; digit < kDigits; ++digit) {
    candidates |= (std::uint32_t{level.places[digit].lane[row]} >> column & 1U) << digit;
  }
  return candidates;
}

// Puts a digit into an open cell where it may stand. The other digits leave the cell when their
// places are next met with the open cells.
template <typename Lanes>
[[gnu::always_inline]] inline void Fill(const Tables& tables, Level& level, int cell, int digit) {
  Places& places = level.places[digit];
  (Lanes::Load(places) - Lanes::Load(tables.withPeers[cell])).Store(places);
  (Lanes::Load(level.open) - Lanes::Load(tables.only[cell])).Store(level.open);
  level.done[digit] |= tables.housesOf[cell];
}

// False when the digit cannot stand in the cell.
template <typename Lanes>
bool Place(const Tables& tables, Level& level, int cell, int digit) {
  const int row = RowOf(cell);
  const unsigned places = level.places[digit].lane[row] & level.open.lane[row];
  if ((places >> ColumnOf(cell) & 1U) == 0) return false;
  Fill<Lanes>(tables, level, cell, digit);
  return true;
}

}  // namespace tessel::solver
