// The bits of a mask, of digits, places or lines.
#pragma once

#include <array>
#include <bit>
#include <cassert>
#include <cstddef>
#include <cstdint>

#include "core/cell.h"

namespace tessel::grade {

// Whether exactly one bit is set.
constexpr bool IsSingle(Mask mask) {
  return mask != 0 && (mask & (mask - 1)) == 0;
}

// Of the nine bits of a mask: a table is faster than the library's count, which has no instruction
// for it on every processor.
inline constexpr auto kBitCounts = [] {
  std::array<std::uint8_t, kAllCandidates + 1> counts{};
  for (std::size_t mask = 0; mask < counts.size(); ++mask) {
    counts[mask] = static_cast<std::uint8_t>(std::popcount(mask));
  }
  return counts;
}();
constexpr int CountOf(Mask mask) {
  return kBitCounts[static_cast<std::size_t>(mask)];
}

// The number of the lowest set bit, from 0; the mask must not be empty.
constexpr int LowestBit(Mask mask) {
  assert(mask != 0);
  return std::countr_zero(static_cast<unsigned>(mask));
}

// Calls `visit` with the number of each set bit, from the lowest.
template <typename Visit>
constexpr void ForEachBit(std::uint32_t bits, const Visit& visit) {
  for (; bits != 0; bits &= bits - 1) visit(std::countr_zero(bits));
}
// The same of a mask.
template <typename Visit>
constexpr void ForEachBit(Mask mask, const Visit& visit) {
  ForEachBit(static_cast<std::uint32_t>(mask), visit);
}

}  // namespace tessel::grade
