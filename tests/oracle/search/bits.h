// Bits of masks that are held in 16-bit numbers.
#pragma once

#include <cstdint>

namespace tessel::oracle {

inline int BitOfDigit(int digit) {
  return 1 << (digit - 1);
}
inline bool HasBit(int mask, int bit) {
  return (mask & bit) != 0;
}
inline void SetBit(std::int16_t& mask, int bit) {
  mask = static_cast<std::int16_t>(mask | bit);
}
inline void ClearBit(std::int16_t& mask, int bit) {
  mask = static_cast<std::int16_t>(mask & ~bit);
}

}  // namespace tessel::oracle
