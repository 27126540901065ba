// One finished puzzle: the record of the puzzle file and of the solving mode.
#pragma once

#include <array>
#include <cstdint>

#include "core/cell.h"

namespace tessel {

struct PuzzleRecord {
  std::array<std::uint8_t, kCellCount> Board{};     // digit 1..9, or 0 for an empty cell
  std::array<std::uint8_t, kCellCount> Solution{};  // digit 1..9
  std::array<std::uint8_t, kCellCount> CageMap{};   // cage 1..9

  friend bool operator==(const PuzzleRecord&, const PuzzleRecord&) = default;
};
static_assert(sizeof(PuzzleRecord) == 243, "the puzzle file holds the record byte for byte");

// The number of records in a file of `length` bytes, rounded to the nearest: a fragment of up to
// 121 bytes does not count and is overwritten by the next record, one of 122 or more stays.
constexpr std::int64_t RecordsIn(std::int64_t length) {
  constexpr std::int64_t recordSize = sizeof(PuzzleRecord);
  return (length + recordSize / 2) / recordSize;
}

}  // namespace tessel
