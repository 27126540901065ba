#include "core/random_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace tessel {
namespace {

constexpr float kMaxBelowOne = 0x0.FFFFFFp0F;
static_assert(kMaxBelowOne < 1.0F);

// The seeds whose first draw has only set bits, and only clear ones.
constexpr std::uint64_t kSeedOfLargest = 0x31628AF67B2131AB;
constexpr std::uint64_t kSeedOfZero = 0x61C8864680B583EB;

class FixedRandom final : public RandomSource {
 public:
  explicit FixedRandom(float value) : value_(value) {}
  void Seed(std::uint64_t) override {}
  float Next() override { return value_; }

 private:
  float value_;
};

std::vector<std::uint32_t> FirstDraws(std::uint64_t seed, int count) {
  SeededRandom random(seed);
  std::vector<std::uint32_t> draws;
  for (int i = 0; i < count; ++i) {
    draws.push_back(static_cast<std::uint32_t>(random.Next() * 0x1p24F));
  }
  return draws;
}

TEST(SeededRandom, RepeatsTheRecordedNumbersOfASeed) {
  EXPECT_THAT(FirstDraws(0, 4), testing::ElementsAre(0xE220A8, 0x6E789E, 0x06C45D, 0xF88BB8));
  EXPECT_THAT(FirstDraws(1234567, 4), testing::ElementsAre(0x599ED0, 0x2C73F0, 0x883EBC, 0x3FBEF7));
}

TEST(SeededRandom, SeedStartsTheSequenceAgain) {
  SeededRandom random(1);
  for (int i = 0; i < 10; ++i) random.Next();
  random.Seed(1234567);
  EXPECT_EQ(random.Next(), static_cast<float>(0x599ED0) * 0x1p-24F);
}

TEST(SeededRandom, StaysBelowOneAndFillsItsTenths) {
  SeededRandom random(99);
  std::array<int, 10> tenths{};
  constexpr int kDraws = 1'000'000;
  for (int i = 0; i < kDraws; ++i) {
    const float value = random.Next();
    ASSERT_GE(value, 0.0F);
    ASSERT_LT(value, 1.0F);
    ++tenths[static_cast<std::size_t>(value * 10)];
  }
  // Six standard deviations of a tenth's count, which are 300 draws each.
  for (const int count : tenths) EXPECT_NEAR(count, kDraws / 10, 1800);
}

TEST(SeededRandom, ReachesBothEndsOfItsRange) {
  EXPECT_EQ(SeededRandom(kSeedOfLargest).Next(), kMaxBelowOne);
  EXPECT_EQ(SeededRandom(kSeedOfZero).Next(), 0.0F);
}

TEST(DrawIndex, TheLargestNumberDrawsTheLastIndex) {
  FixedRandom largest(kMaxBelowOne);
  for (int n = 1; n <= 100'000; ++n) ASSERT_EQ(DrawIndex(largest, n), n - 1);
  FixedRandom zero(0.0F);
  EXPECT_EQ(DrawIndex(zero, 81), 0);
}

TEST(DrawIndex, TakesTheWholePart) {
  FixedRandom random(0.5F);
  EXPECT_EQ(DrawIndex(random, 1), 0);
  EXPECT_EQ(DrawIndex(random, 2), 1);
  EXPECT_EQ(DrawIndex(random, 9), 4);
  EXPECT_EQ(DrawIndex(random, 81), 40);
}

TEST(DrawIndex, DrawsEveryIndex) {
  SeededRandom random(5);
  std::array<int, 81> counts{};
  for (int i = 0; i < 81'000; ++i) ++counts[static_cast<std::size_t>(DrawIndex(random, 81))];
  EXPECT_THAT(counts, testing::Each(testing::AllOf(testing::Ge(800), testing::Le(1200))));
}

}  // namespace
}  // namespace tessel
