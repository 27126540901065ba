// What the passes over the board in 16-bit lanes have in common. Every intermediate result is cast
// back to 16 bits: where one lane were wider, compilers would unpack all of them.
#pragma once

#include "search/search_level.h"

// Where the compiler can, the passes are also built for wider vectors and chosen when the program
// starts on a processor that has them. Not under sanitizers: the choice is made before they start,
// and they would watch it.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define TESSEL_WIDE_VECTORS __attribute__((target_clones("avx2", "default")))
#else
#define TESSEL_WIDE_VECTORS
#endif

// Promises GCC that no iteration of the next loop writes a lane that another one reads, so that it
// vectorises without an overlap test at run time.
#if defined(__GNUC__) && !defined(__clang__)
#define TESSEL_SAME_LANES _Pragma("GCC ivdep")
#else
#define TESSEL_SAME_LANES
#endif

namespace tessel {

// All bits where the number is 0, none where it is not.
constexpr std::int16_t AllOnesIfZero(std::int16_t number) {
  return static_cast<std::int16_t>(-static_cast<int>(number == 0));
}

// All bits where the number is negative, none where it is not.
constexpr std::int16_t AllOnesIfNegative(std::int16_t number) {
  return static_cast<std::int16_t>(number >> 15);
}

// The priority of one lane; a pass takes the maximum. No candidate (contradiction): the key, whose
// bit 14 beats everything. One candidate (single): the key without bit 14, higher at earlier
// positions. Otherwise, and for filled cells: 0.
constexpr std::int16_t PriorityOf(Mask candidates, std::int16_t positionKey) {
  const auto less = static_cast<std::int16_t>(candidates - 1);
  const std::int16_t atMostOne = AllOnesIfZero(static_cast<std::int16_t>(candidates & less));
  const auto marked = static_cast<std::int16_t>(less | ~kUnfilledMark);
  return static_cast<std::int16_t>(atMostOne & positionKey & marked);
}
static_assert(PriorityOf(0b100, PositionKeyAt(80, 7)) == (PositionKeyAt(80, 7) & ~kUnfilledMark));
static_assert(PriorityOf(0, PositionKeyAt(80, 7)) == PositionKeyAt(80, 7));
static_assert(PriorityOf(0b101, PositionKeyAt(0, 7)) == 0);

}  // namespace tessel
