// The engine against the search written out position by position: the same grids, booleans,
// iterations and pumps, and the same levels wherever it is interrupted.
#include <gtest/gtest.h>

#include "tests/oracle/search/literal_conceal.h"
#include "tests/oracle/search/samples.h"
#include "tests/search/search_rig.h"

namespace tessel {
namespace {

using oracle::Grid;
using oracle::Layout;
using oracle::LiteralConceal;
using oracle::LiteralLayout;
using oracle::LiteralLevel;
using oracle::LiteralSearch;

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kLayouts = 60;
#else
constexpr std::uint64_t kLayouts = 1'200;
#endif

// Random, rotational and regular layouts in turn.
Layout LayoutNumber(std::uint64_t number) {
  switch (number % 5) {
    case 0:
    case 1:
      return SampleLayout(number, LiteralLayout::Mode::kRandom);
    case 2:
    case 3:
      return SampleLayout(number, LiteralLayout::Mode::kRotational);
    default:
      return oracle::RegularLayout();
  }
}

// Searches until it is asked the `limit`-th time whether to proceed.
class LimitedDriver final : public SearchDriver {
 public:
  LimitedDriver(long limit, bool follow) : left_(limit) { ObservePlacements(follow); }
  bool BeforeIteration() override { return --left_ > 0; }
  bool ContinueAfterSolution() override { return false; }

 private:
  long left_;
};

// The first `positions` of Order count.
testing::AssertionResult SameLevel(const SearchLevel& level, const LiteralLevel& literal,
                                   int positions) {
  if (level.Digit != literal.Digit) return testing::AssertionFailure() << "Digit";
  if (!std::equal(level.Order.begin(), level.Order.begin() + positions, literal.Order.begin()))
    return testing::AssertionFailure() << "Order";
  if (OnBoard(level.Candidates) != literal.Candidates)
    return testing::AssertionFailure() << "Candidates";
  if (level.LastChoice != literal.LastChoice) return testing::AssertionFailure() << "LastChoice";
  if (level.UndoCount != literal.UndoCount) return testing::AssertionFailure() << "UndoCount";
  for (int u = 1; u <= level.UndoCount; ++u) {
    if (level.UndoDigit[u] != literal.UndoDigit[u] || level.UndoCell[u] != literal.UndoCell[u] ||
        level.UndoRowMask[u] != literal.UndoRowMask[u] ||
        level.UndoColumnMask[u] != literal.UndoColumnMask[u] ||
        level.UndoCageMask[u] != literal.UndoCageMask[u]) {
      return testing::AssertionFailure() << "log entry " << u;
    }
  }
  return testing::AssertionSuccess();
}

void ExpectSameLevels(const SearchProbe& search, const LiteralSearch& literal,
                      int positions = kCellCount) {
  ASSERT_EQ(search.Depth(), static_cast<std::size_t>(literal.Depth));
  for (std::size_t depth = 0; depth <= search.Depth(); ++depth) {
    ASSERT_TRUE(SameLevel(search.Levels()[depth], literal.Levels[depth], positions))
        << "level " << depth;
  }
}

// One order, interrupted at the `limit`-th pump; whether a solution was found before.
bool CompareSearch(SearchRig& rig, LiteralSearch& literal, const Grid& order, long limit,
                   bool follow) {
  literal.onPump = [&literal, left = limit]() mutable {
    if (--left == 0) literal.StopRequested = true;
  };
  const long literalBefore = literal.iterations;
  const LiteralSearch::End literalEnd = literal.GenerateTessel(order);
  LimitedDriver driver(limit, follow);
  const auto before = rig.search.Iterations();
  rig.search.StartEmpty(order);
  const SearchResult end = rig.search.Run(driver);
  EXPECT_EQ(end == SearchResult::kSolved, literalEnd == LiteralSearch::End::kSolved);
  EXPECT_EQ(end == SearchResult::kStopped, literalEnd == LiteralSearch::End::kStopped);
  EXPECT_EQ(rig.search.Iterations() - before, literal.iterations - literalBefore);
  ExpectSameLevels(rig.probe, literal);
  return end == SearchResult::kSolved;
}

TEST(SearchOracle, SameLevelsWhereverAFillEndsOrIsInterrupted) {
  SeededRandom orders(5);
  SearchRig rig;
  int solved = 0;
  for (std::uint64_t number = 0; number < kLayouts; ++number) {
    const Layout layout = LayoutNumber(number);
    LiteralSearch literal(layout);
    rig.Use(layout);
    const bool follow = number % 2 == 0;
    solved +=
        CompareSearch(rig, literal, oracle::DrawOrder(orders), 1 + DrawIndex(orders, 1500), follow);
    ASSERT_FALSE(testing::Test::HasFailure()) << "layout " << number;
  }
  EXPECT_GT(solved, static_cast<int>(kLayouts) / 5);
}

// Conceal's own calls.
TEST(SearchOracle, SameUniquenessIterationsAndPumpsOverConcealing) {
  SearchRig rig;
  long calls = 0;
  for (std::uint64_t number = 0; number < kLayouts; ++number) {
    const Layout layout = LayoutNumber(number);
    const auto solution = oracle::AnySolution(layout, number);
    if (!solution) continue;
    rig.Use(layout);
    SeededRandom random(number);
    LiteralConceal conceal(layout, random);
    auto iterations = static_cast<long>(rig.search.Iterations());
    conceal.onCall = [&](int, const Grid& givens, bool unique) {
      ++calls;
      ASSERT_EQ(rig.UniqueSolution(givens), unique);
      ASSERT_EQ(rig.search.Iterations(), conceal.search.iterations);
      ASSERT_EQ(rig.view.pumps, conceal.search.pumps);
      if (conceal.search.iterations > iterations) {
        const auto empty = std::count(givens.begin(), givens.end(), 0);
        ExpectSameLevels(rig.probe, conceal.search, static_cast<int>(empty));
      }
      iterations = conceal.search.iterations;
    };
    conceal.search.iterations = static_cast<long>(rig.search.Iterations());
    conceal.search.pumps = rig.view.pumps;
    conceal.ConcealCells2ValidTessel(
        *solution, number % 2 == 0 ? LiteralConceal::Mode::kSingle : LiteralConceal::Mode::kPairs);
    ASSERT_FALSE(HasFailure()) << "layout " << number;
  }
  EXPECT_GT(calls, static_cast<long>(kLayouts) * 30);
}

}  // namespace
}  // namespace tessel
