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

enum class Standing : std::uint8_t { kOpen, kSolved, kContradiction };

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
      if (singles.contradiction) return Standing::kContradiction;
      if (singles.digits == 0 && singles.nakedRows == 0) {
        return level_.done[0] == kHouseLanes && Lanes::Load(level_.open).Empty() == ~0U
                   ? Standing::kSolved
                   : Standing::kOpen;
      }
      PlaceHidden(singles);
      if (singles.nakedRows != 0) PlaceNaked(singles);
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
    bool contradiction = false;
    std::uint32_t digits = 0;       // bit d: digit d has hidden singles
    std::uint32_t hidden[kDigits];  // for each digit, the houses in which it has one place
    std::uint32_t nakedRows = 0;    // the rows with naked singles
    Places naked;
  };

  // Meets the places with the open cells and looks at every house and cell once.
  [[gnu::always_inline]] Singles FindSingles() {
    Singles singles;
    const Lanes open = Lanes::Load(level_.open);
    Lanes some = open - open;
    Lanes several = some;
    std::uint32_t wrong = 0;
    for (int digit = 0; digit < kDigits; ++digit) {
      const Lanes places = Lanes::Load(level_.places[digit]) & open;
      places.Store(level_.places[digit]);
      const std::uint32_t done = level_.done[digit];
      wrong |= (places.Empty() & kHouseLanes) ^ done;
      singles.hidden[digit] = places.AtMostOne() & kHouseLanes & ~done;
      singles.digits |= std::uint32_t{singles.hidden[digit] != 0} << digit;
      several = several | (some & places);
      some = some | places;
    }
    wrong |= ~(open - some).Empty();
    singles.contradiction = wrong != 0;
    const Lanes naked = open - several;
    singles.nakedRows = ~naked.Empty() & kRowLanes;
    naked.Store(singles.naked);
    return singles;
  }

  // A place that an earlier one has taken away is passed over: its house has none left then, which
  // the next look finds.
  [[gnu::always_inline]] void PlaceHidden(const Singles& singles) {
    for (std::uint32_t digits = singles.digits; digits != 0; digits &= digits - 1) {
      const int digit = __builtin_ctz(digits);
      for (std::uint32_t left = singles.hidden[digit]; left != 0; left &= left - 1) {
        const int house = __builtin_ctz(left);
        const unsigned bits = level_.places[digit].lane[house] & level_.open.lane[house];
        if (bits != 0) Place(tables_.cellAt[house][__builtin_ctz(bits)], digit);
      }
    }
  }

  [[gnu::always_inline]] void PlaceNaked(const Singles& singles) {
    for (std::uint32_t rows = singles.nakedRows; rows != 0; rows &= rows - 1) {
      const int row = __builtin_ctz(rows);
      for (int digit = 0; digit < kDigits; ++digit) {
        const unsigned bits =
            level_.places[digit].lane[row] & level_.open.lane[row] & singles.naked.lane[row];
        if (bits != 0) Place(tables_.cellAt[row][__builtin_ctz(bits)], digit);
      }
    }
  }

  [[gnu::always_inline]] void Place(int cell, int digit) {
    Fill<Lanes>(tables_, level_, cell, digit);
    work_.digits[cell] = static_cast<std::uint8_t>(digit + 1);
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
