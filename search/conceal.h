// Conceals cells of a complete solution while exactly one solution remains.
#pragma once

#include <cstdint>
#include <optional>

#include "core/progress.h"
#include "core/random_source.h"
#include "search/exact_cover_search.h"

namespace tessel {

enum class ConcealMode : std::uint8_t {
  kSingle,  // one cell at a time, 57 at most
  kPairs,   // a cell together with the one opposite, 29 pairs at most
};

// The givens that are left of `solution`, a filling of the search's layout: digits, 0 for concealed
// cells. They depend on the arguments and the numbers of `random` alone. Nothing when `progress`
// asked to stop.
std::optional<Grid> Conceal(ExactCoverSearch& search, const Grid& solution, ConcealMode mode,
                            RandomSource& random, Progress& progress = Unwatched());
// The same with a search of its own.
std::optional<Grid> Conceal(const Layout& layout, const Grid& solution, ConcealMode mode,
                            RandomSource& random, Progress& progress = Unwatched());

}  // namespace tessel
