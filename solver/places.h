// A set of cells, written down three times: for every row, every column and every cage.
#pragma once

#include <cstdint>

#include "core/cell.h"

namespace tessel::solver {

inline constexpr int kHouseCount = 27;
inline constexpr int kLaneCount = 32;  // 27 houses, and zeros up to 64 bytes
inline constexpr int kFirstColumnLane = kSide;
inline constexpr int kFirstCageLane = 2 * kSide;
inline constexpr std::uint32_t kHouseLanes = (std::uint32_t{1} << kHouseCount) - 1;
inline constexpr std::uint32_t kRowLanes = (std::uint32_t{1} << kSide) - 1;
inline constexpr std::uint32_t kNoLane = ~std::uint32_t{0};  // what Empty() tells of empty places

// Lane h, 0..26, is house h of Layout::AllHouses(): rows, columns, cages. Bit k of it stands for
// the cell k of that house, 0..8, so that a cell is three bits of three lanes.
struct alignas(64) Places {
  std::uint16_t lane[kLaneCount];
};

}  // namespace tessel::solver
