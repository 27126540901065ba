// What a technique of the ladder is made of, and how to ask one. Each is defined in a file of its
// own; hints/ladder.h lists them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/layout.h"
#include "hints/hint.h"

namespace tessel {

// What techniques look at; refers to the values, which must live as long. Candidates are taken as
// they stand: nothing says that they fit the digits on the board, but as a rule those of a filled
// cell are empty.
struct MarkedBoard {
  const Layout& layout;
  const Grid& digits;
  const MaskBoard& candidates;
};

// The rows and columns that a hint is about, whose captions the window colours. Bit i: line i,
// 0..8.
struct Captions {
  Mask rows = 0;
  Mask columns = 0;

  friend bool operator==(const Captions&, const Captions&) = default;
};

// Takes a hint and says whether to go on searching.
using HintVisitor = std::function<bool(Hint)>;

struct Technique {
  const char* name = "";  // as in the middle of a sentence: "naked pair"
  // Calls `visit` with each hint, in the technique's own fixed order, until it returns false. The
  // order differs from one technique to the next on purpose.
  void (*search)(const MarkedBoard& board, const HintVisitor& visit) = nullptr;
  // Both are for hints of this technique's own.
  std::string (*sentence)(const Hint& hint) = nullptr;
  Captions (*captions)(const Hint& hint) = nullptr;
};

// The first hint of the technique's order.
std::optional<Hint> FirstHint(const Technique& technique, const MarkedBoard& board);
// All of them, in its order; two may eliminate the same candidate.
std::vector<Hint> AllHints(const Technique& technique, const MarkedBoard& board);

}  // namespace tessel
