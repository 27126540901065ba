// A hint as a value: what was found, why, and what follows from it.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "core/board.h"
#include "core/cell_set.h"
#include "core/hint_code.h"
#include "core/houses.h"

namespace tessel {

// Candidates that can go from a cell.
struct Elimination {
  int cell = 0;     // 0..80
  Mask digits = 0;  // not empty; all of them are candidates of the cell

  friend bool operator==(const Elimination&, const Elimination&) = default;
};

struct Hint {
  HintCode code = HintCode::kNone;
  // The one cell that the hint names: that of a single, or the lowest that loses a candidate to a
  // pointing cage. None where it names houses instead.
  std::optional<int> cell{};
  std::optional<int> digit{};  // 1..9; none where the hint is about several digits
  // Where the pattern lies, as its sentence lists them: lines of a fish in increasing order,
  // box-line's line before its cage. None for a naked single.
  std::vector<House> houses{};
  CellSet cells{};  // that form the pattern
  Mask digits = 0;  // of the pattern
  // Everything that can go, by cells in increasing order. Empty for a single, whose `digit` can be
  // placed in `cell`; never empty for any other hint.
  std::vector<Elimination> eliminations{};

  // Whether `digit` can be placed in `cell`.
  bool PlacesDigit() const { return eliminations.empty(); }

  friend bool operator==(const Hint&, const Hint&) = default;
};

// The candidates that the eliminations leave.
inline MaskBoard WithoutEliminated(MaskBoard candidates,
                                   std::span<const Elimination> eliminations) {
  for (const auto& [cell, digits] : eliminations) {
    candidates[cell] = Without(candidates[cell], digits);
  }
  return candidates;
}

}  // namespace tessel
