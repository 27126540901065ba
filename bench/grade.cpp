// bench_grade: how long a grade takes, beside the plain way to it and beside the hint ladder, which
// is asked for one hint after another.
#include <algorithm>
#include <cstdio>
#include <vector>

#include "bench/cpu_time.h"
#include "grade/way.h"
#include "hints/ladder.h"
#include "tests/grade/made_puzzles.h"

namespace {

using namespace tessel;

constexpr int kPuzzles = 1000;
constexpr int kRounds = 7;

// The first hint of the ladder, as a step.
std::optional<grade::Step> NextHint(const Layout& layout, const grade::CandidateGrid& position) {
  for (const Technique* technique : kLadder) {
    const auto hint = FirstHint(*technique, {layout, position.digits, position.candidates});
    if (!hint) continue;
    grade::Step step;
    if (hint->PlacesDigit()) {
      const Mask mask = position.candidates[*hint->cell];
      step.placement = grade::Placement{*hint->cell, hint->digit.value_or(LowestDigitOf(mask))};
    }
    for (const auto& [cell, digits] : hint->eliminations) step.removals.push_back({cell, digits});
    return step;
  }
  return std::nullopt;
}

int FollowHints(const Puzzle& puzzle) {
  grade::CandidateGrid position = grade::StartOf(puzzle.layout, puzzle.givens);
  int hints = 0;
  while (const auto step = NextHint(puzzle.layout, position)) {
    position = grade::After(puzzle.layout, position, *step);
    ++hints;
  }
  return hints;
}

// The least microseconds a puzzle in several rounds.
template <typename Work>
double TimeOf(const std::vector<Puzzle>& puzzles, const Work& work) {
  double least = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    const double start = bench::CpuSeconds();
    std::int64_t sum = 0;
    for (const Puzzle& puzzle : puzzles) sum += work(puzzle);
    if (sum <= 0) return 0;
    least = std::min(least, bench::CpuSeconds() - start);
  }
  return least / static_cast<double>(puzzles.size()) * 1e6;
}

std::vector<Puzzle> MadePuzzles() {
  grade::PuzzleMaker maker;
  std::vector<Puzzle> puzzles;
  for (std::uint64_t seed = 0; seed < kPuzzles; ++seed) {
    puzzles.push_back(maker.Make(bench::LayoutKind::kRandom, solver::ConcealRule::kSingle, seed));
  }
  return puzzles;
}

}  // namespace

int main() {
  const std::vector<Puzzle> puzzles = MadePuzzles();
  const double fast = TimeOf(puzzles, [](const Puzzle& puzzle) {
    return grade::GradeOf(puzzle.layout, puzzle.givens).score;
  });
  const double plain = TimeOf(puzzles, [](const Puzzle& puzzle) {
    return grade::GradeOf(grade::WayOf(puzzle.layout, puzzle.givens)).score;
  });
  const double hints = TimeOf(puzzles, FollowHints);
  std::printf("grading, us a puzzle (%d random ones)       ratio\n", kPuzzles);
  std::printf("  a grade                      %9.1f      1.0\n", fast);
  std::printf("  the way with its reasons     %9.1f  %7.1f\n", plain, plain / fast);
  std::printf("  hint after hint              %9.1f  %7.1f\n", hints, hints / fast);
}
