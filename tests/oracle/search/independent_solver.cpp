#include "tests/oracle/search/independent_solver.h"

#include <algorithm>
#include <numeric>

namespace tessel::oracle {

namespace {

constexpr int kColumns = 324;
constexpr int kFirstHouseColumn = 82;  // the first of nine for each house

int FirstNodeOf(int row) {
  return 1 + kColumns + 4 * row;
}

// The conditions that digit + 1 in `cell` meets: cell filled, digit in row, in column, in cage.
std::array<int, 4> ConditionsOf(const Layout& layout, int cell, int digit) {
  const int cage = layout.cageOfCell[cell] - 1;
  return {1 + cell, 82 + 9 * (cell / 9) + digit, 163 + 9 * (cell % 9) + digit,
          244 + 9 * cage + digit};
}

}  // namespace

IndependentSolver::IndependentSolver(const Layout& layout) {
  nodes_.resize(static_cast<std::size_t>(FirstNodeOf(729)));
  for (int i = 0; i <= kColumns; ++i) {
    nodes_[i] = {i == 0 ? kColumns : i - 1, i == kColumns ? 0 : i + 1, i, i, i, -1};
  }
  for (int row = 0; row < 729; ++row) {
    const auto conditions = ConditionsOf(layout, row / 9, row % 9);
    const int first = FirstNodeOf(row);
    for (int k = 0; k < 4; ++k) {
      const int column = conditions[k];
      const int above = nodes_[column].up;
      nodes_[first + k] = {first + (k + 3) % 4, first + (k + 1) % 4, above, column, column, row};
      nodes_[above].down = nodes_[column].up = first + k;
      ++size_[column];
    }
  }
}

void IndependentSolver::Cover(int column) {
  nodes_[nodes_[column].left].right = nodes_[column].right;
  nodes_[nodes_[column].right].left = nodes_[column].left;
  for (int i = nodes_[column].down; i != column; i = nodes_[i].down) {
    for (int j = nodes_[i].right; j != i; j = nodes_[j].right) {
      nodes_[nodes_[j].up].down = nodes_[j].down;
      nodes_[nodes_[j].down].up = nodes_[j].up;
      --size_[nodes_[j].column];
    }
  }
}

void IndependentSolver::Uncover(int column) {
  for (int i = nodes_[column].up; i != column; i = nodes_[i].up) {
    for (int j = nodes_[i].left; j != i; j = nodes_[j].left) {
      nodes_[nodes_[j].up].down = nodes_[nodes_[j].down].up = j;
      ++size_[nodes_[j].column];
    }
  }
  nodes_[nodes_[column].left].right = nodes_[nodes_[column].right].left = column;
}

void IndependentSolver::CoverOthers(int node) {
  for (int j = nodes_[node].right; j != node; j = nodes_[j].right) Cover(nodes_[j].column);
}

void IndependentSolver::UncoverOthers(int node) {
  for (int j = nodes_[node].left; j != node; j = nodes_[j].left) Uncover(nodes_[j].column);
}

int IndependentSolver::HardestColumn() {
  int best = nodes_[0].right;
  for (int column = best; column != 0; column = nodes_[column].right) {
    if (size_[column] * weight_[best] < size_[best] * weight_[column]) best = column;
    if (size_[column] == 0) {
      ++weight_[column];
      return column;
    }
  }
  return best;
}

void IndependentSolver::Search() {
  if (nodes_[0].right == 0) {
    ++found_;
    solution_ = trail_;
    return;
  }
  const int column = HardestColumn();
  Cover(column);
  for (int i = nodes_[column].down; i != column && !Done(); i = nodes_[i].down) {
    if (--nodesLeft_ < 0) break;
    trail_[nodes_[i].row / 9] = static_cast<std::int16_t>(nodes_[i].row % 9 + 1);
    CoverOthers(i);
    Search();
    UncoverOthers(i);
  }
  Uncover(column);
}

std::optional<int> IndependentSolver::CountSolutions(const Grid& givens, int limit, long nodes) {
  weight_.fill(1);
  return Count(givens, limit, nodes);
}

std::optional<int> IndependentSolver::Count(const Grid& givens, int limit, long nodes) {
  found_ = 0;
  limit_ = limit;
  nodesLeft_ = nodes;
  trail_.fill(0);
  covered_.fill(false);
  std::vector<int> order;  // the columns covered for the givens
  bool clash = false;
  for (int cell = 0; cell < 81; ++cell) {
    if (givens[cell] <= 0) continue;
    if (givens[cell] > 9) return 0;
    const int first = FirstNodeOf(9 * cell + givens[cell] - 1);
    trail_[cell] = givens[cell];
    for (int k = 0; k < 4; ++k) {
      const int column = nodes_[first + k].column;
      clash = clash || covered_[column];
      covered_[column] = true;
      order.push_back(column);
    }
  }
  if (clash) return 0;
  for (const int column : order) Cover(column);
  Search();
  for (auto column = order.rbegin(); column != order.rend(); ++column) Uncover(*column);
  if (nodesLeft_ < 0) return std::nullopt;
  return found_;
}

// The digits are alike, so one house may be taken to hold 1..9 in order: the one that made the most
// trouble so far. What was learned about trouble is kept from round to round.
std::optional<bool> IndependentSolver::HasFilling(long nodes) {
  weight_.fill(1);
  for (long round = 2000; nodes > 0; round *= 2) {
    const std::optional<int> count = Count(HardestHouseInOrder(), 1, std::min(round, nodes));
    if (count) return *count == 1;
    nodes -= round;
  }
  return std::nullopt;
}

Grid IndependentSolver::HardestHouseInOrder() const {
  int hardest = kFirstHouseColumn;
  long mostWeight = 0;
  for (int house = kFirstHouseColumn; house <= kColumns; house += 9) {
    const long weight = std::accumulate(&weight_[house], &weight_[house] + 9, 0L);
    if (weight > mostWeight) {
      mostWeight = weight;
      hardest = house;
    }
  }
  Grid givens{};
  std::int16_t digit = 0;
  for (int node = nodes_[hardest].down; node != hardest; node = nodes_[node].down) {
    givens[nodes_[node].row / 9] = ++digit;
  }
  return givens;
}

bool IsFilling(const Layout& layout, const Grid& grid) {
  std::array<bool, kColumns + 1> met{};
  for (int cell = 0; cell < 81; ++cell) {
    if (grid[cell] < 1 || grid[cell] > 9) return false;
    for (const int condition : ConditionsOf(layout, cell, grid[cell] - 1)) {
      if (met[condition]) return false;
      met[condition] = true;
    }
  }
  return true;
}

}  // namespace tessel::oracle
