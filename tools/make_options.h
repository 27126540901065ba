// What tessel make was asked for, checked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "maker/batch.h"
#include "tools/record_format.h"

namespace tessel::tools {

// The indices first..end-1. A run that ends when it has enough puzzles goes on as far as it must.
struct Range {
  std::uint64_t first = 0;
  std::uint64_t end = 0;

  std::uint64_t Size() const { return end - first; }
};

struct Shard {
  std::uint64_t number = 0;  // 0..count-1
  std::uint64_t count = 1;
};

struct MakeOptions {
  maker::Order order;
  bool ownSeed = false;               // drawn, as none was given
  std::optional<std::uint64_t> want;  // so many accepted puzzles end the run
  std::uint64_t tries = 1;            // otherwise, so many indices from `first` on
  std::uint64_t first = 0;
  std::optional<Shard> shard;
  bool unique = false;
  RecordFormat format{"text", ""};
  int jobs = 1;
  std::string output = "-";
  bool resume = false;
  std::string manifest;  // empty: none is written
  bool quiet = false;

  Range Indices() const;
  bool IsFiltered() const;
};

}  // namespace tessel::tools
