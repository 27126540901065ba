// The exact decision, by search and by SAT solver.
#include "solver/fillable.h"

#include "tests/solver/solver_rig.h"

namespace tessel::solver {
namespace {

using oracle::IndependentSolver;
using oracle::IsFilling;

// Two cages are rows but for the last cells, which they exchange: those of one column would have to
// hold the same digit.
Layout Unfillable() {
  CageNumbers cages;
  for (int cell = 0; cell < kCellCount; ++cell) {
    cages[cell] = static_cast<std::uint8_t>(1 + RowOf(cell));
  }
  std::swap(cages[CellAt(0, 8)], cages[CellAt(1, 8)]);
  return Layout::FromCages(cages, Layout::Shape::kAny).value();
}

TEST(DecideFillable, RowsThatExchangeCellsOfAColumnHaveNoFilling) {
  EXPECT_EQ(DecideFillable(Unfillable()).answer, Answer::kNo);
  EXPECT_EQ(DecideBySat(Unfillable()).answer, Answer::kNo);
}

TEST(DecideFillable, CagesThatAreRowsAddNothing) {
  CageNumbers rows;
  for (int cell = 0; cell < kCellCount; ++cell) {
    rows[cell] = static_cast<std::uint8_t>(1 + RowOf(cell));
  }
  EXPECT_EQ(DecideFillable(Layout::FromCages(rows).value()).answer, Answer::kYes);
}

TEST(DecideFillable, SearchAndSatAgree) {
  int unfillable = 0;
  for (std::uint64_t seed = 0; seed < kSampleLayouts; ++seed) {
    RandomStream random(seed);
    const Layout layout = Torn(SampleLayout(seed), static_cast<int>(seed % 20), random);
    const Filling decided = DecideFillable(layout);
    const Filling bySat = DecideBySat(layout);
    ASSERT_EQ(decided.answer, bySat.answer) << seed;
    unfillable += decided.answer == Answer::kNo ? 1 : 0;
    for (const Filling& filling : {decided, bySat}) {
      if (filling.answer == Answer::kNo) continue;
      EXPECT_TRUE(IsFilling(OracleLayoutOf(layout), OracleGridOf(filling.grid))) << seed;
    }
  }
  EXPECT_GT(unfillable, 0);
}

// One given of a layout without a filling, which the search alone does not decide.
TEST(DecideCompletions, EndsWhereTheSearchDoesNot) {
  const auto cages = oracle::GridOf(
      "112223333111723334111223344155522444666555844666885559667288999677788999777784899");
  const Layout layout = Layout::FromCages(GridOf(cages), Layout::Shape::kAny).value();
  Grid givens{};
  givens[57] = 6;
  EXPECT_EQ(Solver(layout).CompletionsWithin(givens, 2, 20'000), std::nullopt);
  Solver solver(Layout::Regular());
  EXPECT_TRUE(DecideCompletions(solver, layout, givens).empty());
}

TEST(DecideCompletions, FindsTwoBySatToo) {
  const Layout layout = SampleLayout(1);
  Solver solver(Layout::Regular());
  EXPECT_EQ(DecideCompletions(solver, layout, {}).size(), 2U);
  EXPECT_EQ(DecideCompletions(solver, layout, {}, 1).size(), 1U);
}

}  // namespace
}  // namespace tessel::solver
