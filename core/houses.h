// The 27 houses as one list, so that rows, columns and cages need one loop.
#pragma once

#include <array>
#include <cstdint>

#include "core/cell.h"

namespace tessel {

enum class HouseKind : std::uint8_t { kRow, kColumn, kCage };
inline constexpr std::array kHouseKinds{HouseKind::kRow, HouseKind::kColumn, HouseKind::kCage};

using HouseCells = std::array<std::int16_t, kSide>;

struct House {
  HouseKind kind = HouseKind::kRow;
  int index = 0;       // row, column or cage - 1: always 0..8
  HouseCells cells{};  // in increasing order

  friend constexpr bool operator==(const House&, const House&) = default;
};

// Rows 0..8, then columns 0..8, then cages 1..9.
using Houses = std::array<House, 3 * kSide>;

}  // namespace tessel
