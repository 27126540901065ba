// The works that the program and the literal oracle are timed at, over the same samples.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tessel::bench {

// All that a batch has come to. Two implementations agree when their outcomes are equal.
struct Outcome {
  std::vector<std::int16_t> results;  // layouts, solutions, puzzles, verdicts
  std::int64_t iterations = 0;        // of the search
  std::int64_t pumps = 0;             // of events: one a step of the walk or an iteration

  friend bool operator==(const Outcome&, const Outcome&) = default;
};

struct Work {
  std::string name;
  double ratioToReach;
  std::int64_t items;  // in a batch; times are given for one of them
  std::function<Outcome()> product;
  std::function<Outcome()> literal;
};

std::vector<Work> AllWorks();

}  // namespace tessel::bench
