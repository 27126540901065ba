// A puzzle as a value: what is made, read, written, graded and printed.
#pragma once

#include <optional>

#include "core/board.h"
#include "core/layout.h"

namespace tessel {

struct Puzzle {
  Layout layout;
  Grid givens{};                 // any digits: nothing says that they fit together
  std::optional<Grid> solution;  // complete, where it is known

  friend bool operator==(const Puzzle&, const Puzzle&) = default;
};

}  // namespace tessel
