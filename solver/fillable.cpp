#include "solver/fillable.h"

#include <cadical.hpp>
#include <span>

namespace tessel::solver {

namespace {

constexpr int kSatisfiable = 10;  // CaDiCaL's number for it

// Nearly every layout is decided within these; a thousand take about half a millisecond.
constexpr std::uint64_t kSearchedNodes = 5'000;

// "The digit, 1..9, stands in the cell", as CaDiCaL numbers statements: from 1 on, below 0 for the
// contrary.
int Stands(int cell, int digit) {
  return 1 + kSide * cell + (digit - 1);
}

void RequireAny(CaDiCaL::Solver& sat, std::span<const int> statements) {
  for (const int statement : statements) sat.add(statement);
  sat.add(0);
}

void RequireOneOf(CaDiCaL::Solver& sat, const std::array<int, kSide>& statements) {
  RequireAny(sat, statements);
  for (int i = 0; i < kSide; ++i) {
    for (int j = 0; j < i; ++j) RequireAny(sat, std::array{-statements[i], -statements[j]});
  }
}

// Every cell holds one digit, every house every digit once.
void RequireRules(CaDiCaL::Solver& sat, const Layout& layout) {
  std::array<int, kSide> statements;
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int digit = 1; digit <= kSide; ++digit) statements[digit - 1] = Stands(cell, digit);
    RequireOneOf(sat, statements);
  }
  for (const House& house : layout.AllHouses()) {
    for (int digit = 1; digit <= kSide; ++digit) {
      for (int i = 0; i < kSide; ++i) statements[i] = Stands(house.cells[i], digit);
      RequireOneOf(sat, statements);
    }
  }
}

void RequireGivens(CaDiCaL::Solver& sat, const Grid& givens) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (givens[cell] != 0) RequireAny(sat, std::array{Stands(cell, givens[cell])});
  }
}

// Another grid than this one.
void RequireOther(CaDiCaL::Solver& sat, const Grid& grid) {
  std::array<int, kCellCount> others;
  for (int cell = 0; cell < kCellCount; ++cell) others[cell] = -Stands(cell, grid[cell]);
  RequireAny(sat, others);
}

Grid GridOf(CaDiCaL::Solver& sat) {
  Grid grid{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int digit = 1; digit <= kSide; ++digit) {
      if (sat.val(Stands(cell, digit)) > 0) grid[cell] = static_cast<std::uint8_t>(digit);
    }
  }
  return grid;
}

}  // namespace

// Digits can be exchanged for each other, so those of the first row are given.
Filling DecideBySat(const Layout& layout) {
  CaDiCaL::Solver sat;
  RequireRules(sat, layout);
  for (int column = 0; column < kSide; ++column)
    RequireAny(sat, std::array{Stands(column, column + 1)});
  if (sat.solve() != kSatisfiable) return {Answer::kNo, {}, 0};
  return {Answer::kYes, GridOf(sat), 0};
}

namespace {

// A completion that was found is forbidden before the next is looked for.
std::vector<Grid> CompletionsBySat(const Layout& layout, const Grid& givens, int most) {
  CaDiCaL::Solver sat;
  RequireRules(sat, layout);
  RequireGivens(sat, givens);
  std::vector<Grid> completions;
  while (std::ssize(completions) < most && sat.solve() == kSatisfiable) {
    completions.push_back(GridOf(sat));
    RequireOther(sat, completions.back());
  }
  return completions;
}

}  // namespace

std::vector<Grid> DecideCompletions(Solver& solver, const Layout& layout, const Grid& givens,
                                    int most) {
  solver.Use(layout);
  const auto searched = solver.CompletionsWithin(givens, most, kSearchedNodes);
  return searched ? *searched : CompletionsBySat(layout, givens, most);
}

Filling DecideFillable(const Layout& layout, Path path) {
  const Filling searched = Solver(layout, path).FillWithin(kSearchedNodes);
  if (searched.answer != Answer::kUnknown) return searched;
  Filling decided = DecideBySat(layout);
  decided.nodes = searched.nodes;
  return decided;
}

}  // namespace tessel::solver
