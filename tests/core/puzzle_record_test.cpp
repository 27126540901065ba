#include "core/puzzle_record.h"

#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>

namespace tessel {
namespace {

std::array<std::uint8_t, 243> BytesOf(const PuzzleRecord& record) {
  std::array<std::uint8_t, 243> bytes{};
  static_assert(sizeof(record) == sizeof(bytes));
  std::memcpy(bytes.data(), &record, sizeof(record));
  return bytes;
}

TEST(PuzzleRecord, IsThreeTimes81BytesWithoutPadding) {
  static_assert(std::is_trivially_copyable_v<PuzzleRecord>);
  static_assert(std::has_unique_object_representations_v<PuzzleRecord>);
  PuzzleRecord record;
  record.Board.front() = 1;
  record.Board.back() = 2;
  record.Solution.front() = 3;
  record.Solution.back() = 4;
  record.CageMap.front() = 5;
  record.CageMap.back() = 6;
  std::array<std::uint8_t, 243> expected{};
  expected[0] = 1;
  expected[80] = 2;
  expected[81] = 3;
  expected[161] = 4;
  expected[162] = 5;
  expected[242] = 6;
  EXPECT_EQ(BytesOf(record), expected);
}

TEST(PuzzleRecord, StartsZeroAndComparesByContents) {
  PuzzleRecord record;
  EXPECT_EQ(BytesOf(record), (std::array<std::uint8_t, 243>{}));
  const PuzzleRecord empty;
  EXPECT_EQ(record, empty);
  record.CageMap[80] = 1;
  EXPECT_NE(record, empty);
}

}  // namespace
}  // namespace tessel
