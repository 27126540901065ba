// Concealing against the window's passes written out, and what is left against another solver.
#include "solver/conceal.h"

#include "tests/oracle/search/literal_conceal.h"
#include "tests/solver/solver_rig.h"

namespace tessel::solver {
namespace {

using oracle::IndependentSolver;
using oracle::LiteralConceal;

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kPuzzles = 6;
#else
constexpr std::uint64_t kPuzzles = 30;
#endif

class ConcealedPuzzle : public OnEveryPath {
 protected:
  // The layout of the seed, or one later, and a filling.
  Grid Sample(std::uint64_t seed) {
    while (true) {
      RandomStream random(seed);
      solver.Use(layout = SampleLayout(seed));
      const Filling filling = solver.Fill(random, 20'000);
      if (filling.answer == Answer::kYes) return filling.grid;
      seed += 1000 * std::ssize(kPaths);
    }
  }

  Layout layout = Layout::Regular();
  Solver solver{layout, IsAvailable(GetParam()) ? GetParam() : Path::kPlain};
};
TESSEL_ON_EVERY_PATH(ConcealedPuzzle);

TEST_P(ConcealedPuzzle, IsTheWindows) {
  for (std::uint64_t seed = 0; seed < kPuzzles; ++seed) {
    const Grid solution = Sample(seed);
    for (const ConcealRule rule : {ConcealRule::kSingle, ConcealRule::kPairs}) {
      SeededRandom windows(seed);
      const auto mode = rule == ConcealRule::kSingle ? LiteralConceal::Mode::kSingle
                                                     : LiteralConceal::Mode::kPairs;
      LiteralConceal literal(OracleLayoutOf(layout), windows);
      const auto expected = literal.ConcealCells2ValidTessel(OracleGridOf(solution), mode);
      SeededRandom random(seed);
      EXPECT_EQ(Conceal(solver, solution, rule, random), GridOf(*expected)) << seed;
      EXPECT_EQ(random.Next(), windows.Next());
    }
  }
}

TEST_P(ConcealedPuzzle, MinimalOneCanMissNoGiven) {
  for (std::uint64_t seed = 0; seed < kPuzzles / 6; ++seed) {
    const Grid solution = Sample(seed);
    RandomStream random(seed);
    Grid givens = Conceal(solver, solution, ConcealRule::kSingle, random, kMinimalGivens);
    IndependentSolver other(OracleLayoutOf(layout));
    EXPECT_EQ(other.CountSolutions(OracleGridOf(givens), 2), 1);
    for (std::uint8_t& given : givens) {
      if (given == 0) continue;
      const std::uint8_t digit = std::exchange(given, std::uint8_t{0});
      EXPECT_EQ(other.CountSolutions(OracleGridOf(givens), 2), 2);
      given = digit;
    }
  }
}

TEST_P(ConcealedPuzzle, StopsAtTheNumberOfGivens) {
  const Grid solution = Sample(1);
  for (const int fewest : {81, 60, 30}) {
    RandomStream random(5);
    const Grid givens = Conceal(solver, solution, ConcealRule::kSingle, random, fewest);
    EXPECT_EQ(std::ranges::count_if(givens, [](int given) { return given != 0; }), fewest);
  }
}

TEST_P(ConcealedPuzzle, PairsLeaveAPatternThatAHalfTurnKeeps) {
  const Grid solution = Sample(2);
  RandomStream random(5);
  const Grid givens = Conceal(solver, solution, ConcealRule::kPairs, random, kMinimalGivens);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(givens[cell] == 0, givens[HalfTurnOf(cell)] == 0);
  }
}

}  // namespace
}  // namespace tessel::solver
