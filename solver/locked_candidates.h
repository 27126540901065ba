// Locked candidates: where a cage has a digit on one line alone, the rest of the line cannot have
// it, and the same with cage and line exchanged.
#pragma once

#include "solver/singles.h"

namespace tessel::solver {

// Thirty-two intersections of a cage and a line are looked at in one go, for each digit whose
// places have changed since it was last found without any.
template <typename Lanes>
class LockedCandidates {
 public:
  LockedCandidates(const Tables& tables, Level& level, Places* unlocked)
      : tables_(tables), level_(level), unlocked_(unlocked) {}

  // Whether any candidate was taken out.
  [[gnu::always_inline]] bool Remove() {
    const std::uint32_t changed = ChangedDigits();
    std::uint32_t found = 0;
    for (int group = 0; group < tables_.intersectionGroups; ++group) {
      found |= RemoveIn(group * kLaneCount, changed);
    }
    for (std::uint32_t left = changed & ~found; left != 0; left &= left - 1) {
      const int digit = __builtin_ctz(left);
      Lanes::Load(level_.places[digit]).Store(unlocked_[digit]);
    }
    return found != 0;
  }

 private:
  [[gnu::always_inline]] std::uint32_t ChangedDigits() const {
    std::uint32_t changed = 0;
    for (int digit = 0; digit < kDigits; ++digit) {
      const Lanes difference = Lanes::Load(level_.places[digit]) ^ Lanes::Load(unlocked_[digit]);
      changed |= std::uint32_t{difference.Empty() != kNoLane} << digit;
    }
    return changed;
  }

  // Of `digits`, those with candidates to take out at the intersections from `first` on. A cage
  // keeps to the line when its rest has no place; where the line keeps to the cage as well, nothing
  // is to be taken out. A cage that has the digit has no place at all, and says nothing.
  [[gnu::always_inline]] std::uint32_t RemoveIn(int first, std::uint32_t digits) {
    const Lanes cages = Lanes::Load(tables_.cage + first);
    const Lanes lines = Lanes::Load(tables_.line + first);
    const Lanes shared = Lanes::Load(tables_.shared + first);
    const Lanes restOfCage = Lanes::Load(tables_.restOfCage + first);
    const Lanes restOfLine = Lanes::Load(tables_.restOfLine + first);
    std::uint32_t found = 0;
    for (; digits != 0; digits &= digits - 1) {
      const int digit = __builtin_ctz(digits);
      const Lanes places = Lanes::Load(level_.places[digit]);
      const Lanes inCages = places.template At<2, 3>(cages);
      const std::uint32_t cageKeeps = (inCages & restOfCage).Empty();
      const std::uint32_t lineKeeps = (places.template At<0, 2>(lines) & restOfLine).Empty();
      const std::uint32_t locked = (cageKeeps ^ lineKeeps) & ~(inCages & shared).Empty();
      if (locked == 0) continue;
      found |= std::uint32_t{1} << digit;
      TakeOut(digit, first, locked & cageKeeps, tables_.line, tables_.cage);
      TakeOut(digit, first, locked & lineKeeps, tables_.cage, tables_.line);
    }
    return found;
  }

  // Takes the digit out of the houses `from`, but not where they lie in `within`.
  [[gnu::always_inline]] void TakeOut(int digit, int first, std::uint32_t locked,
                                      const std::uint16_t* from, const std::uint16_t* within) {
    Places& places = level_.places[digit];
    for (; locked != 0; locked &= locked - 1) {
      const int intersection = first + __builtin_ctz(locked);
      const Lanes doomed = Lanes::Load(tables_.house[from[intersection]]) -
                           Lanes::Load(tables_.house[within[intersection]]);
      (Lanes::Load(places) - doomed).Store(places);
    }
  }

  const Tables& tables_;
  Level& level_;
  Places* unlocked_;  // for each digit, places without locked candidates
};

}  // namespace tessel::solver
