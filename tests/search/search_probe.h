// What the search keeps to itself.
#pragma once

#include <cstddef>
#include <vector>

#include "search/exact_cover_search.h"

namespace tessel {

class SearchProbe {
 public:
  explicit SearchProbe(ExactCoverSearch& search) : search_(search) {}

  std::vector<SearchLevel>& Levels() const { return search_.Levels; }
  std::size_t Depth() const { return static_cast<std::size_t>(search_.Depth); }

 private:
  ExactCoverSearch& search_;
};

}  // namespace tessel
