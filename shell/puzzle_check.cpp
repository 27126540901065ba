#include "shell/puzzle_check.h"

#include "core/names.h"
#include "solver/solver.h"
#include "solver/verdict.h"

namespace tessel {

namespace {

constexpr std::uint64_t kMostNodes = 200'000;

}  // namespace

PuzzleCheck CheckPuzzle(const Puzzle& puzzle) {
  solver::Solver solver(puzzle.layout);
  const auto found = solver.CompletionsWithin(puzzle.givens, 2, kMostNodes);
  if (!found) return {std::nullopt, {}, "not found out: that takes too long"};
  PuzzleCheck check{std::nullopt, *found, solver::VerdictOf(puzzle, *found, CellName)};
  if (found->size() == 1) check.puzzle = Puzzle{puzzle.layout, puzzle.givens, found->front()};
  return check;
}

}  // namespace tessel
