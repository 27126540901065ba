// What follows from a level without trying anything: singles and locked candidates.
#pragma once

#include "solver/kernel.h"

namespace tessel::solver {

inline constexpr int kDigits = kSide;

// Places a digit, 0..8, in an open cell where it may stand. Its other digits leave the cell when
// the level's places are next met with its open cells.
template <typename Lanes>
[[gnu::always_inline]] inline void Fill(const Tables& tables, Level& level, int cell, int digit) {
  (Lanes::Load(level.places[digit]) - Lanes::Load(tables.withPeers[cell]))
      .Store(level.places[digit]);
  (Lanes::Load(level.open) - Lanes::Load(tables.only[cell])).Store(level.open);
  level.done[digit] |= tables.housesOf[cell];
}

template <typename Lanes>
class Propagation {
 public:
  Propagation(const Tables& tables, Workspace& work, Level& level)
      : tables_(tables), work_(work), level_(level) {}

  // Places singles and takes out locked candidates until there are none.
  [[gnu::always_inline]] Standing Run() {
    while (true) {
      const Standing standing = PlaceSingles();
      if (standing != Standing::kOpen || !RemoveLocked()) return standing;
    }
  }

  Standing PlaceSingles() {
    while (true) {
      const Singles singles = FindSingles();
      if (singles.digits == 0 && singles.nakedRows == 0) {
        if (singles.emptyCell) return Standing::kContradiction;
        return Lanes::Load(level_.open).Empty() == ~0U ? Standing::kSolved : Standing::kOpen;
      }
      if (singles.emptyCell || !Place(singles)) return Standing::kContradiction;
    }
  }

  // Whether any were found.
  bool RemoveLocked() {
    std::uint32_t changed = ChangedDigits();
    std::uint32_t found = 0;
    for (int group = 0; group < tables_.intersectionGroups; ++group) {
      found |= RemoveLocked(group * kLaneCount, changed);
    }
    for (std::uint32_t left = changed & ~found; left != 0; left &= left - 1) {
      const int digit = __builtin_ctz(left);
      Lanes::Load(level_.places[digit]).Store(work_.unlocked[digit]);
    }
    return found != 0;
  }

 private:
  struct Singles {
    bool emptyCell = false;         // a cell has no candidate
    std::uint32_t digits = 0;       // bit d: digit d has houses with one place at most
    std::uint32_t hidden[kDigits];  // for each digit: these
    std::uint32_t nakedRows = 0;    // the rows with naked singles
    Places naked;
  };

  // Meets the places with the open cells and looks at every house and cell once.
  [[gnu::always_inline]] Singles FindSingles() {
    Singles singles;
    const Lanes open = Lanes::Load(level_.open);
    Lanes some = open - open;
    Lanes several = some;
    for (int digit = 0; digit < kDigits; ++digit) {
      const Lanes places = Lanes::Load(level_.places[digit]) & open;
      places.Store(level_.places[digit]);
      singles.hidden[digit] = places.AtMostOne() & kHouseLanes & ~level_.done[digit];
      singles.digits |= std::uint32_t{singles.hidden[digit] != 0} << digit;
      several = several | (some & places);
      some = some | places;
    }
    singles.emptyCell = (open - some).Empty() != ~0U;
    const Lanes naked = open - several;
    singles.nakedRows = ~naked.Empty() & kRowLanes;
    naked.Store(singles.naked);
    return singles;
  }

  // False when a house has no place left for a digit, or singles exclude each other.
  [[gnu::always_inline]] bool Place(const Singles& singles) {
    std::uint64_t filled[2] = {0, 0};
    Lanes open = Lanes::Load(level_.open);
    const auto isFilled = [&](int cell) { return (filled[cell / 64] >> cell % 64 & 1U) != 0; };
    const auto fill = [&](int cell, int digit) {
      filled[cell / 64] |= std::uint64_t{1} << cell % 64;
      open = open - Lanes::Load(tables_.only[cell]);
      work_.digits[cell] = static_cast<std::uint8_t>(digit + 1);
    };
    for (std::uint32_t digits = singles.digits; digits != 0; digits &= digits - 1) {
      const int digit = __builtin_ctz(digits);
      Places& memory = level_.places[digit];
      Lanes places = Lanes::Load(memory);
      std::uint32_t done = level_.done[digit];
      for (std::uint32_t left = singles.hidden[digit]; left != 0;) {
        const int house = __builtin_ctz(left);
        const unsigned bits = memory.lane[house];
        if (bits == 0) return false;
        const int cell = tables_.cellAt[house][__builtin_ctz(bits)];
        const std::uint32_t houses = tables_.housesOf[cell];
        if ((done & houses) != 0 || isFilled(cell)) return false;
        done |= houses;
        left &= ~houses;
        fill(cell, digit);
        places = places - Lanes::Load(tables_.withPeers[cell]);
      }
      places.Store(memory);
      level_.done[digit] = done;
    }
    for (std::uint32_t rows = singles.nakedRows; rows != 0; rows &= rows - 1) {
      const int row = __builtin_ctz(rows);
      for (unsigned cells = singles.naked.lane[row]; cells != 0; cells &= cells - 1) {
        const int column = __builtin_ctz(cells);
        const int cell = tables_.cellAt[row][column];
        if (isFilled(cell)) continue;
        std::uint32_t digits = 0;
        for (int digit = 0; digit < kDigits; ++digit) {
          digits |= (std::uint32_t{level_.places[digit].lane[row]} >> column & 1U) << digit;
        }
        if (digits == 0) return false;
        const int digit = __builtin_ctz(digits);
        fill(cell, digit);
        level_.done[digit] |= tables_.housesOf[cell];
        Places& memory = level_.places[digit];
        (Lanes::Load(memory) - Lanes::Load(tables_.withPeers[cell])).Store(memory);
      }
    }
    open.Store(level_.open);
    return true;
  }

  [[gnu::always_inline]] std::uint32_t ChangedDigits() {
    std::uint32_t changed = 0;
    for (int digit = 0; digit < kDigits; ++digit) {
      const Lanes now = Lanes::Load(level_.places[digit]);
      const Lanes before = Lanes::Load(work_.unlocked[digit]);
      const bool same = ((now - before) | (before - now)).Empty() == ~0U;
      changed |= std::uint32_t{!same} << digit;
    }
    return changed;
  }

  // The digits among `digits` for which the group of intersections has found candidates to remove.
  [[gnu::always_inline]] std::uint32_t RemoveLocked(int group, std::uint32_t digits) {
    const Lanes cages = Lanes::Load(tables_.cage + group);
    const Lanes lines = Lanes::Load(tables_.line + group);
    const Lanes shared = Lanes::Load(tables_.shared + group);
    const Lanes restOfCage = Lanes::Load(tables_.restOfCage + group);
    const Lanes restOfLine = Lanes::Load(tables_.restOfLine + group);
    std::uint32_t found = 0;
    for (std::uint32_t left = digits; left != 0; left &= left - 1) {
      const int digit = __builtin_ctz(left);
      const Lanes places = Lanes::Load(level_.places[digit]);
      const Lanes inCages = places.At(cages);
      const std::uint32_t onLineAlone = (inCages & restOfCage).Empty();
      const std::uint32_t inCageAlone = (places.At(lines) & restOfLine).Empty();
      const std::uint32_t locked = (onLineAlone ^ inCageAlone) & ~(inCages & shared).Empty();
      if (locked == 0) continue;
      found |= std::uint32_t{1} << digit;
      Unlock(group, digit, locked & onLineAlone, &Tables::line, &Tables::cage);
      Unlock(group, digit, locked & inCageAlone, &Tables::cage, &Tables::line);
    }
    return found;
  }

  // Takes the digit out of the houses `from` where they lie off the houses `within`.
  using HouseNumbers = std::uint16_t (Tables::*)[kMostIntersections];
  [[gnu::always_inline]] void Unlock(int group, int digit, std::uint32_t locked, HouseNumbers from,
                                     HouseNumbers within) {
    for (; locked != 0; locked &= locked - 1) {
      const int number = group + __builtin_ctz(locked);
      const Lanes places = Lanes::Load(level_.places[digit]);
      const Lanes outside = Lanes::Load(tables_.house[(tables_.*from)[number]]) -
                            Lanes::Load(tables_.house[(tables_.*within)[number]]);
      (places - outside).Store(level_.places[digit]);
    }
  }

  const Tables& tables_;
  Workspace& work_;
  Level& level_;
};

}  // namespace tessel::solver
