// A run of indices, made one after the other: the work that threads share out.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "maker/maker.h"
#include "maker/wish.h"

namespace tessel::maker {

struct Made {
  std::uint64_t index = 0;
  Puzzle puzzle;
  std::optional<grade::Grade> grade;  // where the wish or the caller asked for it
};

struct Order {
  Recipe recipe;
  Wish wish;
  std::uint64_t seed = 0;
  bool graded = false;  // grade every puzzle that is wanted

  friend bool operator==(const Order&, const Order&) = default;
};

// One for each thread.
class BatchMaker {
 public:
  explicit BatchMaker(const Order& order) : order_(order), maker_(order.recipe) {}

  // The wanted puzzles among `count` indices from `first` on, in the order of their indices.
  std::vector<Made> Make(std::uint64_t first, std::uint64_t count);

 private:
  std::optional<Made> MakeOne(std::uint64_t index);

  Order order_;
  Maker maker_;
};

}  // namespace tessel::maker
