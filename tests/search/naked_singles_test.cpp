#include "search/naked_singles.h"

#include <gtest/gtest.h>

#include "search/peer_tables.h"
#include "tests/oracle/search/literal_search.h"
#include "tests/oracle/search/program_layout.h"
#include "tests/oracle/search/samples.h"

namespace tessel {
namespace {

using oracle::GridOf;

struct NakedSingles : testing::Test {
  NakedSingles() { Use(oracle::RegularLayout()); }

  void Use(const oracle::Layout& layout) { tables = PeerTables(oracle::ProgramLayout(layout)); }
  SinglesResult Follow(const CellDigits& givens) const {
    return PropagateNakedSingles(givens, tables.PeersAndSelf());
  }

  PeerTables tables{Layout::Regular()};
};

TEST_F(NakedSingles, EmptyBoardStaysOpen) {
  EXPECT_EQ(Follow(CellDigits{}), SinglesResult::kOpen);
}

TEST_F(NakedSingles, FullGridIsSolvedWhenItKeepsTheRules) {
  CellDigits grid = oracle::AnySolution(oracle::RegularLayout(), 1).value();
  EXPECT_EQ(Follow(grid), SinglesResult::kSolved);
  std::swap(grid[0], grid[1]);
  EXPECT_EQ(Follow(grid), SinglesResult::kContradiction);
}

TEST_F(NakedSingles, NumbersUpTo0AreEmptyAndThoseAbove9NoDigits) {
  CellDigits grid = oracle::AnySolution(oracle::RegularLayout(), 1).value();
  for (const int number : {0, -1, -32768}) {
    grid[40] = static_cast<std::int16_t>(number);
    EXPECT_EQ(Follow(grid), SinglesResult::kSolved) << number;
  }
  for (const int number : {10, 512, 32767}) {
    grid[40] = static_cast<std::int16_t>(number);
    EXPECT_EQ(Follow(grid), SinglesResult::kContradiction) << number;
  }
}

TEST_F(NakedSingles, CellLeftWithoutACandidateIsAContradiction) {
  EXPECT_EQ(Follow(GridOf("12345678.........9")), SinglesResult::kContradiction);
}

// Cells 8 and 17 share a column, and both have only the 9 left.
TEST_F(NakedSingles, SinglesOfOneRoundMayClash) {
  EXPECT_EQ(Follow(GridOf("12345678.45678123.")), SinglesResult::kContradiction);
  EXPECT_EQ(Follow(GridOf("12345678..........")), SinglesResult::kOpen);
}

TEST_F(NakedSingles, HousesAreThoseOfTheLayout) {
  CellDigits givens{};
  givens[0] = givens[20] = 6;
  EXPECT_EQ(Follow(givens), SinglesResult::kContradiction);
  Use(
      oracle::LayoutOf(GridOf("111111111222222222333333333444444444555555555"
                              "666666666777777777888888888999999999")));
  EXPECT_EQ(Follow(givens), SinglesResult::kOpen);
}

// Givens of solutions, now and then with a wrong one among them.
TEST_F(NakedSingles, EndWhereSinglesPlacedOneByOneEnd) {
  SeededRandom random(3);
  std::array<int, 3> ends{};
  for (std::uint64_t number = 0; number < 600; ++number) {
    const oracle::Layout layout =
        oracle::SampleLayout(number % 20, oracle::LiteralLayout::Mode::kRandom);
    const auto solution = oracle::AnySolution(layout, number);
    if (!solution) continue;
    Use(layout);
    CellDigits givens = *solution;
    for (int left = 20 + DrawIndex(random, 60); left > 0; --left) {
      givens[DrawIndex(random, kCellCount)] = 0;
    }
    if (number % 3 == 0) givens[DrawIndex(random, kCellCount)] = 5;
    oracle::LiteralSearch literal(layout);
    const bool unique = literal.UniqueSolution(givens).value();
    const SinglesResult end = Follow(givens);
    ++ends.at(static_cast<std::size_t>(end));
    ASSERT_EQ(end == SinglesResult::kOpen, literal.iterations > 0) << number;
    ASSERT_TRUE(end == SinglesResult::kOpen || (end == SinglesResult::kSolved) == unique) << number;
  }
  for (const int count : ends) EXPECT_GT(count, 50);
}

}  // namespace
}  // namespace tessel
