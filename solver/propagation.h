// What follows from a level without trying anything.
#pragma once

#include "solver/locked_candidates.h"
#include "solver/singles.h"

namespace tessel::solver {

// Places singles until there are none, or they lead to a contradiction.
template <typename Lanes>
[[gnu::always_inline]] inline Standing PlaceSingles(const Tables& tables, Workspace& work,
                                                    Level& level) {
  while (true) {
    const Singles singles = FindSingles<Lanes>(level);
    if (singles.emptyCell) return Standing::kContradiction;
    if (!singles.Any()) {
      const bool full = Lanes::Load(level.open).Empty() == kNoLane;
      return full ? Standing::kSolved : Standing::kOpen;
    }
    SinglesPlacement<Lanes> placement(tables, level, work.digits);
    if (!placement.Run(singles)) return Standing::kContradiction;
  }
}

// Takes out locked candidates; whether there were any.
template <typename Lanes>
[[gnu::always_inline]] inline bool RemoveLocked(const Tables& tables, Workspace& work,
                                                Level& level) {
  return LockedCandidates<Lanes>(tables, level, work.unlocked).Remove();
}

// Both in turns until neither finds anything.
template <typename Lanes>
[[gnu::always_inline]] inline Standing Propagate(const Tables& tables, Workspace& work,
                                                 Level& level) {
  while (true) {
    const Standing standing = PlaceSingles<Lanes>(tables, work, level);
    if (standing != Standing::kOpen || !RemoveLocked<Lanes>(tables, work, level)) return standing;
  }
}

}  // namespace tessel::solver
