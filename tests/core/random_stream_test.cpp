#include "core/random_stream.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace tessel {
namespace {

TEST(RandomStream, IsAFunctionOfSeedIndexAndPurpose) {
  EXPECT_EQ(RandomStream(1, 2, 3).Next(), RandomStream(1, 2, 3).Next());
  std::set<std::uint64_t> firsts;
  for (std::uint64_t seed = 0; seed < 10; ++seed) {
    for (std::uint64_t index = 0; index < 10; ++index) {
      for (std::uint64_t purpose = 0; purpose < 10; ++purpose) {
        firsts.insert(RandomStream(seed, index, purpose).Next());
      }
    }
  }
  EXPECT_EQ(firsts.size(), 1000u);
}

// Recorded: puzzles that were made from a seed must be made again.
TEST(RandomStream, GivesTheRecordedNumbers) {
  RandomStream stream(42, 7, 1);
  EXPECT_EQ(stream.Next(), 0x9D27FB3DC5C283ECu);
  EXPECT_EQ(stream.Below(81), 61u);
  EXPECT_EQ(stream.Below(1u << 31), 121626826u);
}

TEST(RandomStream, DrawsEachNumberBelowTheBoundAboutAsOften) {
  RandomStream stream(5);
  std::array<int, 9> counts{};
  for (int draw = 0; draw < 90'000; ++draw) ++counts.at(stream.Below(9));
  for (const int count : counts) EXPECT_NEAR(count, 10'000, 400);
}

TEST(RandomStream, BoundsThatDoNotDivideTheRangeAreStillFair) {
  RandomStream stream(6);
  constexpr std::uint64_t bound = 3ull << 30;  // without a second draw, a third would come twice
  std::array<int, 3> counts{};
  for (int draw = 0; draw < 30'000; ++draw) ++counts.at(stream.Below(bound) % 3);
  for (const int count : counts) EXPECT_NEAR(count, 10'000, 400);
}

TEST(RandomStream, TheOnlyNumberBelowOneIsZero) {
  EXPECT_EQ(RandomStream(9).Below(1), 0u);
}

}  // namespace
}  // namespace tessel
