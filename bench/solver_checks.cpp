// Long comparisons of the solver with a slow independent one, with the window's engine and with a
// SAT solver. Ends with a failure at the first difference.
//   solver_checks [QUESTIONS [PUZZLES [LAYOUTS OF EACH KIND]]]
#include <cstdio>
#include <cstdlib>

#include "bench/engine.h"
#include "search/exact_cover_search.h"
#include "solver/conceal.h"
#include "solver/fillable.h"
#include "tests/solver/samples.h"

namespace tessel::bench {
namespace {

constexpr std::uint64_t kNodes = 100'000;
constexpr long kSlowPlacements = 200'000;

void Require(bool holds, const char* what, std::uint64_t seed) {
  if (holds) return;
  std::printf("DIFFERENCE: %s, seed %llu\n", what, static_cast<unsigned long long>(seed));
  std::exit(EXIT_FAILURE);
}

struct Sample {
  Layout layout;
  Grid filling{};
};

Sample DrawSample(std::uint64_t seed, RandomStream& random, int swaps) {
  while (true) {
    const Layout layout = solver::Torn(solver::SampleLayout(seed), swaps, random);
    const auto filling = solver::Solver(layout).Fill(random, kNodes);
    if (filling.answer == solver::Answer::kYes) return {layout, filling.grid};
    seed += 1'000'000 * 3;
  }
}

// Every third board has wrong digits: mostly contradictions, often clashes.
Grid DrawGivens(const Grid& filling, RandomStream& random) {
  Grid givens{};
  for (auto left = 22 + random.Below(25); left > 0; --left) {
    const auto cell = random.Below(kCellCount);
    givens[cell] = filling[cell];
  }
  if (random.Below(3) != 0) return givens;
  for (auto wrong = 1 + random.Below(3); wrong > 0; --wrong) {
    givens[random.Below(kCellCount)] = static_cast<std::uint8_t>(1 + random.Below(9));
  }
  return givens;
}

// Also against the window's engine, which does not end on some of the boards without a completion:
// it is asked where the slow solver was quick.
void CheckQuestions(int questions) {
  constexpr int each = 20;
  std::array<int, 3> answers{};
  int unanswered = 0;
  for (int seed = 0; seed < questions / each; ++seed) {
    RandomStream random(static_cast<std::uint64_t>(seed));
    const auto [layout, filling] = DrawSample(static_cast<std::uint64_t>(seed), random, seed % 4);
    solver::Solver fast(layout);
    oracle::IndependentSolver slow(solver::OracleLayoutOf(layout));
    for (int question = 0; question < each; ++question) {
      const Grid givens = DrawGivens(filling, random);
      const auto found = fast.Completions(givens).size();
      ++answers[found];
      const auto expected = slow.CountSolutions(solver::OracleGridOf(givens), 2, kSlowPlacements);
      if (!expected) {
        ++unanswered;
        continue;
      }
      Require(std::cmp_equal(found, *expected), "completions", static_cast<std::uint64_t>(seed));
      Require((found == 1) == HasUniqueSolution(layout, givens), "the window's answer",
              static_cast<std::uint64_t>(seed));
    }
  }
  std::printf(
      "Questions: none %d, one %d, several %d; 0 differences; %d left open by the slow solver\n",
      answers[0], answers[1], answers[2], unanswered);
}

void CheckPuzzles(int puzzles) {
  Engine engine;
  for (int i = 0; i < puzzles; ++i) {
    const auto seed = static_cast<std::uint64_t>(i);
    RandomStream stream(seed);
    const auto [layout, filling] = DrawSample(seed, stream, 0);
    const bool pairs = i % 2 == 1;
    engine.Use(layout);
    engine.solution = filling;
    engine.ConcealSolution(pairs ? ConcealMode::kPairs : ConcealMode::kSingle, seed);
    solver::Solver fast(layout);
    SeededRandom random(seed);
    const auto rule = pairs ? solver::ConcealRule::kPairs : solver::ConcealRule::kSingle;
    Require(solver::Conceal(fast, filling, rule, random) == engine.givens, "a puzzle", seed);
  }
  std::printf("Puzzles: %d as the window conceals them\n", puzzles);
}

// Every "no" has to be the SAT solver's, every "yes" a filling.
void CheckLayouts(LayoutKind kind, int layouts) {
  Engine engine;
  int unfillable = 0;
  int undecided = 0;
  int missed = 0;
  for (int i = 0; i < layouts; ++i) {
    const auto seed = static_cast<std::uint64_t>(i);
    engine.SawAnyLayout(kind, seed);
    const auto decided = solver::DecideFillable(engine.layout);
    const auto searched = solver::Solver(engine.layout).FillWithin(solver::kSawnNodes);
    undecided += searched.answer == solver::Answer::kUnknown ? 1 : 0;
    if (decided.answer == solver::Answer::kYes) {
      missed += searched.answer == solver::Answer::kYes ? 0 : 1;
      Require(oracle::IsFilling(solver::OracleLayoutOf(engine.layout),
                                solver::OracleGridOf(decided.grid)),
              "a filling", seed);
    } else {
      ++unfillable;
      Require(solver::DecideBySat(engine.layout).answer == solver::Answer::kNo, "a no", seed);
    }
  }
  std::printf("Layouts: %d, without a filling %d, each confirmed; undecided by Saw %d, missed %d\n",
              layouts, unfillable, undecided, missed);
}

}  // namespace
}  // namespace tessel::bench

int main(int argc, char** argv) {
  using namespace tessel::bench;
  const auto argument = [&](int i, int usual) { return argc > i ? std::atoi(argv[i]) : usual; };
  CheckQuestions(argument(1, 100'000));
  CheckPuzzles(argument(2, 6'000));
  CheckLayouts(LayoutKind::kRandom, argument(3, 20'000));
  CheckLayouts(LayoutKind::kRotational, argument(3, 20'000));
}
