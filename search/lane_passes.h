// What the passes over the board in 16-bit lanes have in common. The narrow types keep every lane
// at 16 bits, so that compilers vectorise the loops.
#pragma once

#include "search/search_level.h"

// Where the compiler can, the passes are also built for wider vectors and chosen when the program
// starts on a processor that has them.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__)
#define TESSEL_WIDE_VECTORS __attribute__((target_clones("avx2", "default")))
#else
#define TESSEL_WIDE_VECTORS
#endif

// Before a loop that reads and writes the same lanes, or lanes far apart: the compiler needn't
// check.
#if defined(__GNUC__) && !defined(__clang__)
#define TESSEL_SAME_LANES _Pragma("GCC ivdep")
#else
#define TESSEL_SAME_LANES
#endif

namespace tessel {

// All bits where the number is 0, none where it is not.
constexpr std::int16_t LaneOfZero(std::int16_t number) {
  return static_cast<std::int16_t>(-static_cast<int>(number == 0));
}

// All bits where the number is negative, none where it is not.
constexpr std::int16_t LaneOfNegative(std::int16_t number) {
  return static_cast<std::int16_t>(number >> 15);
}

// What an unfilled cell with these candidates contributes to the outlook: its rank without the mark
// when it has one candidate, with the mark when it has none, else 0.
constexpr std::int16_t Urgency(Mask candidates, std::int16_t rank) {
  const auto less = static_cast<std::int16_t>(candidates - 1);
  const std::int16_t atMostOne = LaneOfZero(static_cast<std::int16_t>(candidates & less));
  const auto marked = static_cast<std::int16_t>(less | ~kUnfilledMark);
  return static_cast<std::int16_t>(atMostOne & rank & marked);
}
static_assert(Urgency(0b100, RankAt(80, 7)) == (RankAt(80, 7) & ~kUnfilledMark));
static_assert(Urgency(0, RankAt(80, 7)) == RankAt(80, 7));
static_assert(Urgency(0b101, RankAt(0, 7)) == 0);

}  // namespace tessel
