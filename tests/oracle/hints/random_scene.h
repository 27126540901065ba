// Boards by chance for the comparisons: consistent ones, made from a solved grid, and wild ones.
#pragma once

#include "core/game_state.h"
#include "tests/oracle/hints/random_layout.h"

namespace tessel::literal {

struct Scene {
  CageMap cages{};
  Grid solution{};
  Grid board{};                 // 0 for an empty cell
  std::array<int, 81> marks{};  // candidate masks
};

// Every filled cell holds its solution's digit and has no marks, every empty cell's marks hold the
// solution's digit and none that its houses hold. Patterns are planted in some of them.
Scene ConsistentScene(const SolvedLayout& solved, RandomSource& random);

// Random digits and masks of many densities, now and then with marks in filled cells too. Patterns
// are planted in some of them.
Scene WildScene(const SolvedLayout& solved, RandomSource& random);

// One or the other.
Scene AnyScene(const SolvedLayout& solved, RandomSource& random);

// Puts the scene on the state's board, as the puzzle played.
void Load(const Scene& scene, GameState& state);

}  // namespace tessel::literal
