// Fills a layout with a random complete solution.
#pragma once

#include <optional>

#include "core/progress.h"
#include "core/random_source.h"
#include "search/exact_cover_search.h"

namespace tessel {

// A solution of the search's layout, which stands in its top level too; it depends on the layout
// and the numbers of `random` alone. Nothing when `progress` asked to stop or the layout proves to
// have no filling; for most layouts without one that proof would take for ever.
//
// When `progress` watches placements after the solution is found, the search that has found it runs
// once more for it to watch.
std::optional<Grid> Fill(ExactCoverSearch& search, RandomSource& random,
                         Progress& progress = Unwatched());
// The same with a search of its own.
std::optional<Grid> Fill(const Layout& layout, RandomSource& random,
                         Progress& progress = Unwatched());

}  // namespace tessel
