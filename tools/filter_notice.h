// Tells early in a filtered run what share of the puzzles passes, and how long it will take.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "tools/manifest.h"

namespace tessel::tools {

class FilterNotice {
 public:
  // Of a run that has come so far already.
  FilterNotice(const MakeOptions& options, const Tally& tally);

  // A line to be told now, once each.
  std::optional<std::string> After(const Tally& tally);

 private:
  std::string Share(const Tally& tally, std::uint64_t tried) const;

  Range range_;
  std::optional<std::uint64_t> want_;
  std::uint64_t start_;  // the index that the run began or went on at
  bool isFiltered_;
  bool toldShare_ = false;
  bool toldEmptiness_ = false;
  std::chrono::steady_clock::time_point began_ = std::chrono::steady_clock::now();
};

}  // namespace tessel::tools
