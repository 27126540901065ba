// Layouts, orders and solutions for tests and benchmarks, made by the oracles from seeds.
#pragma once

#include <string_view>

#include "tests/oracle/search/literal_layout.h"
#include "tests/oracle/search/literal_search.h"

namespace tessel::oracle {

// 0..80 after 500 swaps of cells drawn one after the other.
Grid DrawOrder(RandomSource& random);

Layout SampleLayout(std::uint64_t seed, LiteralLayout::Mode mode);

struct TryOutResult {
  std::optional<Grid> solution;  // nothing when no try ended within the limit
  Grid order{};                  // of the last try
  long iterations = 0;           // of all tries
  long pumps = 0;                // of all tries
};
// Draws orders until the search of one ends in a solution within `limit` pumps.
TryOutResult TryOrders(const Layout& layout, RandomSource& random, long limit, int tries);

// A solution of the layout; nothing when the layout most likely has none.
std::optional<Grid> SampleSolution(const Layout& layout, std::uint64_t seed);

// A solution of the layout, found by the independent solver and with its digits exchanged at
// random; nothing when the layout has none. Quicker by far than SampleSolution, and always the same
// but for the digits.
std::optional<Grid> AnySolution(const Layout& layout, std::uint64_t seed);

// A digit for each cell, '.' for 0; the cells after the last character are 0 too.
Grid GridOf(std::string_view text);

}  // namespace tessel::oracle
