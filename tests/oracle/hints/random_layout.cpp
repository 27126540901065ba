#include "tests/oracle/hints/random_layout.h"

#include <bit>
#include <set>
#include <utility>
#include <vector>

namespace tessel::literal {

namespace {

std::vector<int> FindNeighbours(int cell) {
  std::vector<int> neighbours;
  if (cell >= 9) neighbours.push_back(cell - 9);
  if (cell < 72) neighbours.push_back(cell + 9);
  if (cell % 9 > 0) neighbours.push_back(cell - 1);
  if (cell % 9 < 8) neighbours.push_back(cell + 1);
  return neighbours;
}

const std::vector<int>& NeighboursOf(int cell) {
  static const auto table = [] {
    std::array<std::vector<int>, 81> all;
    for (int i = 0; i < 81; ++i) all[i] = FindNeighbours(i);
    return all;
  }();
  return table[cell];
}

// The number of cells of the cage that can be reached from `start`, a cell of it.
int CellsAround(const CageMap& cages, int start) {
  std::array<bool, 81> seen{};
  std::array<int, 81> reached{start};
  std::size_t count = 1;
  seen[start] = true;
  for (std::size_t i = 0; i < count; ++i) {
    for (const int next : NeighboursOf(reached[i])) {
      if (cages[next] != cages[start] || seen[next]) continue;
      seen[next] = true;
      reached[count++] = next;
    }
  }
  return static_cast<int>(count);
}

bool Touches(const CageMap& cages, int cell, int cage) {
  for (const int next : NeighboursOf(cell)) {
    if (cages[next] == cage) return true;
  }
  return false;
}

template <typename Keep>
int DrawCell(RandomSource& random, Keep keep) {
  std::array<int, 81> cells;
  int count = 0;
  for (int cell = 0; cell < 81; ++cell) {
    if (keep(cell)) cells[count++] = cell;
  }
  return cells[DrawIndex(random, count)];
}

// Gives a cell to a touching cage and gets one back, when both cages stay whole.
bool Swap(CageMap& cages, RandomSource& random) {
  const int given = DrawIndex(random, 81);
  const std::vector<int>& beside = NeighboursOf(given);
  const int from = cages[given];
  const int to = cages[beside[DrawIndex(random, static_cast<int>(beside.size()))]];
  if (from == to) return false;
  const int taken =
      DrawCell(random, [&](int cell) { return cages[cell] == to && Touches(cages, cell, from); });
  std::swap(cages[given], cages[taken]);
  if (CellsAround(cages, given) == 9 && CellsAround(cages, taken) == 9) return true;
  std::swap(cages[given], cages[taken]);
  return false;
}

class GridSearch {
 public:
  GridSearch(const CageMap& cages, RandomSource& random) : cages_(cages), random_(random) {}

  bool Fill(int filled = 0) {
    if (filled == 81) return true;
    if (++visits_ > kMaxVisits) return false;
    const int cell = TightestCell();
    int open = Open(cell);
    while (open != 0 && visits_ <= kMaxVisits) {
      const int digit = DrawDigit(open);
      open &= ~(1 << (digit - 1));
      Toggle(cell, digit);
      grid[cell] = digit;
      if (Fill(filled + 1)) return true;
      grid[cell] = 0;
      Toggle(cell, digit);
    }
    return false;
  }

  Grid grid{};

 private:
  static constexpr int kMaxVisits = 5000;

  int Open(int cell) const {
    return 511 & ~(rows_[cell / 9] | columns_[cell % 9] | cageDigits_[cages_[cell] - 1]);
  }
  int TightestCell() const {
    int best = -1;
    for (int cell = 0; cell < 81; ++cell) {
      if (grid[cell] != 0) continue;
      if (best < 0 || Choices(cell) < Choices(best)) best = cell;
    }
    return best;
  }
  int Choices(int cell) const { return std::popcount(static_cast<unsigned>(Open(cell))); }
  int DrawDigit(int open) {
    while (true) {
      const int digit = 1 + DrawIndex(random_, 9);
      if ((open & (1 << (digit - 1))) != 0) return digit;
    }
  }
  void Toggle(int cell, int digit) {
    const int bit = 1 << (digit - 1);
    rows_[cell / 9] ^= bit;
    columns_[cell % 9] ^= bit;
    cageDigits_[cages_[cell] - 1] ^= bit;
  }

  const CageMap& cages_;
  RandomSource& random_;
  std::array<int, 9> rows_{};
  std::array<int, 9> columns_{};
  std::array<int, 9> cageDigits_{};
  int visits_ = 0;
};

}  // namespace

CageMap RegularLayout() {
  CageMap cages;
  for (int cell = 0; cell < 81; ++cell) cages[cell] = 3 * (cell / 27) + cell % 9 / 3 + 1;
  return cages;
}

CageMap RandomLayout(RandomSource& random, int swaps) {
  CageMap cages = RegularLayout();
  for (int done = 0; done < swaps;) done += Swap(cages, random) ? 1 : 0;
  return cages;
}

bool IsLayout(const CageMap& cages) {
  std::set<int> numbers(cages.begin(), cages.end());
  for (int cell = 0; cell < 81; ++cell) {
    if (CellsAround(cages, cell) != 9) return false;
  }
  return numbers == std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9};
}

std::optional<Grid> RandomSolution(const CageMap& cages, RandomSource& random) {
  GridSearch search(cages, random);
  if (!search.Fill()) return std::nullopt;
  return search.grid;
}

SolvedLayout RegularSolved(RandomSource& random) {
  const CageMap cages = RegularLayout();
  while (true) {
    if (const auto solution = RandomSolution(cages, random)) return {cages, *solution};
  }
}

SolvedLayout IrregularSolved(RandomSource& random) {
  while (true) {
    const CageMap cages = RandomLayout(random);
    if (const auto solution = RandomSolution(cages, random)) return {cages, *solution};
  }
}

}  // namespace tessel::literal
