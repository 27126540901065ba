// A puzzle with all that a file may say about it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/puzzle.h"

namespace tessel::formats {

// How hard a puzzle is, where somebody has graded it.
struct Rating {
  int level = 0;        // 1 (easy) to 6 (beyond the known steps)
  std::string hardest;  // the name of the hardest step
  int score = 0;        // orders the puzzles of a level

  friend bool operator==(const Rating&, const Rating&) = default;
};

struct DescribedPuzzle {
  Puzzle puzzle;
  std::uint64_t index = 0;                 // the place among the puzzles of its run, from 0
  std::string title{};                     // UTF-8; empty where there is none
  std::string author{};                    // UTF-8; empty where there is none
  std::optional<Grid> placed{};            // digits that a player put into cells without a given
  std::optional<MaskBoard> pencilMarks{};  // candidates that a player kept; 0 where a cell has none
  std::optional<Rating> rating{};

  friend bool operator==(const DescribedPuzzle&, const DescribedPuzzle&) = default;
};

}  // namespace tessel::formats
