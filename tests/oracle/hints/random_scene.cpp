#include "tests/oracle/hints/random_scene.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "tests/core/layouts.h"

namespace tessel::literal {

namespace {

int Bit(int digit) {
  return 1 << (digit - 1);
}
bool Chance(RandomSource& random, double probability) {
  return static_cast<double>(random.Next()) < probability;
}
double OneOf(RandomSource& random, std::initializer_list<double> values) {
  return values.begin()[DrawIndex(random, static_cast<int>(values.size()))];
}
std::array<int, 9> Shuffled(RandomSource& random) {
  std::array<int, 9> numbers;
  std::iota(numbers.begin(), numbers.end(), 0);
  for (int i = 8; i > 0; --i) std::swap(numbers[i], numbers[DrawIndex(random, i + 1)]);
  return numbers;
}
bool See(const Scene& scene, int a, int b) {
  return a / 9 == b / 9 || a % 9 == b % 9 || scene.cages[a] == scene.cages[b];
}
std::vector<int> CellsOfHouse(const Scene& scene, int house) {
  std::vector<int> cells;
  for (int cell = 0; cell < 81; ++cell) {
    if (house < 9    ? cell / 9 == house
        : house < 18 ? cell % 9 == house - 9
                     : scene.cages[cell] == house - 17) {
      cells.push_back(cell);
    }
  }
  return cells;
}

int RandomMask(RandomSource& random, double density) {
  int mask = 0;
  for (int digit = 1; digit <= 9; ++digit) {
    if (Chance(random, density)) mask |= Bit(digit);
  }
  return mask;
}

// Makes lines of one digit alike: the rows (or columns) chosen hold it exactly where the solution
// has it in one of them. In a consistent scene only cells that can hold it get it.
void PlantFish(Scene& scene, RandomSource& random, int size, bool consistent) {
  const auto lines = Shuffled(random);
  const int digit = 1 + DrawIndex(random, 9);
  const bool byRows = Chance(random, 0.5);
  const auto at = [&](int line, int place) { return byRows ? 9 * line + place : 9 * place + line; };
  std::vector<int> places;
  for (int i = 0; i < size; ++i) {
    for (int place = 0; place < 9; ++place) {
      if (scene.solution[at(lines[i], place)] == digit) places.push_back(place);
    }
  }
  for (int i = 0; i < size; ++i) {
    for (int place = 0; place < 9; ++place) {
      const int cell = at(lines[i], place);
      const bool wanted = std::find(places.begin(), places.end(), place) != places.end();
      if (!wanted) scene.marks[cell] &= ~Bit(digit);
      if (wanted && scene.board[cell] == 0 && !consistent) scene.marks[cell] |= Bit(digit);
    }
  }
}

std::vector<int> EmptyCells(const Scene& scene, RandomSource& random) {
  const std::vector<int> all = CellsOfHouse(scene, DrawIndex(random, 27));
  std::vector<int> empty;
  for (const int i : Shuffled(random)) {
    if (scene.board[all[i]] == 0) empty.push_back(all[i]);
  }
  return empty;
}

// Leaves `size` cells of a house with the digits of their solutions alone; the first of these
// stays in all of them.
void PlantNaked(Scene& scene, RandomSource& random, std::size_t size) {
  const std::vector<int> empty = EmptyCells(scene, random);
  if (empty.size() <= size) return;
  int digits = 0;
  for (std::size_t i = 0; i < size; ++i) digits |= Bit(scene.solution[empty[i]]);
  const double kept = OneOf(random, {1.0, 0.5});
  for (std::size_t i = 0; i < size; ++i) {
    int& mask = scene.marks[empty[i]];
    const int required = Bit(scene.solution[empty[i]]) | Bit(scene.solution[empty[0]]);
    mask &= digits & (required | (Chance(random, kept) ? 511 : RandomMask(random, 0.5)));
  }
}

// Leaves the digits of `size` cells of a house in no other of its cells.
void PlantHidden(Scene& scene, RandomSource& random, std::size_t size) {
  const std::vector<int> empty = EmptyCells(scene, random);
  if (empty.size() <= size) return;
  int digits = 0;
  for (std::size_t i = 0; i < size; ++i) digits |= Bit(scene.solution[empty[i]]);
  for (std::size_t i = size; i < empty.size(); ++i) {
    scene.marks[empty[i]] &= ~digits | Bit(scene.solution[empty[i]]);
  }
}

// Five cells of a house with four digits between them: no solution has that.
void PlantQuint(Scene& scene, RandomSource& random) {
  const std::vector<int> empty = EmptyCells(scene, random);
  if (empty.size() < 6) return;
  const auto digits = Shuffled(random);
  int allowed = 0;
  for (int i = 0; i < 4; ++i) allowed |= Bit(1 + digits[i]);
  for (int i = 0; i < 5; ++i)
    scene.marks[empty[i]] = allowed & (RandomMask(random, 0.6) | Bit(1 + digits[0]));
}

void PlantSomething(Scene& scene, RandomSource& random, bool consistent) {
  for (int planted = DrawIndex(random, 4); planted > 0; --planted) {
    const int kind = DrawIndex(random, consistent ? 6 : 7);
    if (kind < 2) PlantFish(scene, random, 2 + kind, consistent);
    if (kind == 2 || kind == 3) PlantNaked(scene, random, 2 + DrawIndex(random, 3));
    if (kind == 4 || kind == 5) PlantHidden(scene, random, 2 + DrawIndex(random, 2));
    if (kind == 6) PlantQuint(scene, random);
  }
}

// The solved grid with its digits renamed.
Scene Renamed(const SolvedLayout& solved, RandomSource& random) {
  Scene scene;
  scene.cages = solved.cages;
  const auto names = Shuffled(random);
  for (int cell = 0; cell < 81; ++cell) scene.solution[cell] = 1 + names[solved.solution[cell] - 1];
  return scene;
}

}  // namespace

Scene ConsistentScene(const SolvedLayout& solved, RandomSource& random) {
  Scene scene = Renamed(solved, random);
  const double filled = OneOf(random, {0.0, 0.1, 0.25, 0.4, 0.6, 0.8});
  const double lost = OneOf(random, {0.0, 0.0, 0.1, 0.3, 0.6});
  for (int cell = 0; cell < 81; ++cell) {
    if (Chance(random, filled)) scene.board[cell] = scene.solution[cell];
  }
  for (int cell = 0; cell < 81; ++cell) {
    if (scene.board[cell] != 0) continue;
    scene.marks[cell] = ~RandomMask(random, lost) & 511;
    for (int other = 0; other < 81; ++other) {
      if (scene.board[other] != 0 && See(scene, cell, other)) {
        scene.marks[cell] &= ~Bit(scene.board[other]);
      }
    }
    scene.marks[cell] |= Bit(scene.solution[cell]);
  }
  PlantSomething(scene, random, true);
  return scene;
}

Scene WildScene(const SolvedLayout& solved, RandomSource& random) {
  Scene scene = Renamed(solved, random);
  const double filled = OneOf(random, {0.0, 0.2, 0.5, 0.8});
  const double density = OneOf(random, {0.05, 0.15, 0.3, 0.5, 0.7, 0.9});
  const double marksWhereFilled = OneOf(random, {0.0, 0.0, 0.3});
  for (int cell = 0; cell < 81; ++cell) {
    if (Chance(random, filled)) scene.board[cell] = 1 + DrawIndex(random, 9);
    if (scene.board[cell] == 0 || Chance(random, marksWhereFilled)) {
      scene.marks[cell] = RandomMask(random, density);
    }
  }
  PlantSomething(scene, random, false);
  return scene;
}

Scene AnyScene(const SolvedLayout& solved, RandomSource& random) {
  return Chance(random, 0.5) ? ConsistentScene(solved, random) : WildScene(solved, random);
}

void Load(const Scene& scene, GameState& state) {
  for (int cell = 0; cell < 81; ++cell) {
    state.SavedPuzzle.CageMap[cell] = static_cast<std::uint8_t>(scene.cages[cell]);
    state.SavedPuzzle.Solution[cell] = static_cast<std::uint8_t>(scene.solution[cell]);
    state.SavedPuzzle.Board[cell] = static_cast<std::uint8_t>(scene.board[cell]);
    state.Candidates[cell] = static_cast<Mask>(scene.marks[cell]);
  }
  state.PlayBoard = state.SavedPuzzle;
  SetLayout(state, LayoutOfCages(scene.cages));
}

}  // namespace tessel::literal
