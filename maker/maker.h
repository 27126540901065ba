// Makes puzzles from numbers: puzzle i of seed S is a function of S, i and the recipe alone.
#pragma once

#include <cstdint>

#include "core/puzzle.h"
#include "core/random_stream.h"
#include "maker/recipe.h"
#include "solver/solver.h"

namespace tessel::maker {

// What a seed makes is promised for ever within a stream. A change that makes another puzzle of
// some seed needs the next number, and the old stream beside it.
inline constexpr std::uint64_t kStream = 1;

// One for each thread. Keeps its solver's memory from one puzzle to the next, and nothing else.
class Maker {
 public:
  explicit Maker(const Recipe& recipe);

  // Puzzle `index` of `seed`, with its one solution. Made anew, not remembered.
  Puzzle Make(std::uint64_t seed, std::uint64_t index);

 private:
  struct Filled {
    Layout layout;
    Grid grid;
  };

  Filled SawAndFill(std::uint64_t seed, std::uint64_t index);

  Recipe recipe_;
  solver::Solver solver_;
};

}  // namespace tessel::maker
