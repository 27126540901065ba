// What shapes a puzzle, beside its seed and its index.
#pragma once

#include <cstdint>

#include "solver/conceal.h"

namespace tessel::maker {

enum class LayoutKind : std::uint8_t {
  kRandom,
  kRotational,  // a half turn brings every cage to the place of another one, or of itself
  kRegular,     // the nine boxes
};
inline constexpr int kLayoutKindCount = 3;

struct Recipe {
  LayoutKind layout = LayoutKind::kRandom;
  solver::ConcealRule conceal = solver::ConcealRule::kSingle;
  // Concealing ends when no more givens are left, or when every cell has been tried.
  int givens = solver::kDefaultGivens;

  friend bool operator==(const Recipe&, const Recipe&) = default;
};

}  // namespace tessel::maker
