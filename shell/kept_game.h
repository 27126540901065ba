// An unfinished game as the game file holds it: lines of text, the last of which tells whether all
// the others are there.
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "core/position.h"
#include "core/puzzle_record.h"
#include "shell/history.h"

namespace tessel {

struct KeptGame {
  PuzzleRecord puzzle;  // as Restart opens it
  Position position;
  History history;

  friend bool operator==(const KeptGame&, const KeptGame&) = default;
};

// The text holds so many steps back and so many forth, the nearest; the game itself has no limit.
// They keep writing it within a fraction of a millisecond.
inline constexpr std::size_t kKeptSteps = 500;

std::string TextOf(const PuzzleRecord& puzzle, const Position& position, const History& history);

// The lines with a last one that vouches for them.
std::string Vouched(std::string lines);

// Only what TextOf can have written: a sound puzzle with its solution, and positions that leave its
// givens alone. The error says what is wrong, "line 4: a given is changed".
tl::expected<KeptGame, std::string> ReadGame(std::string_view text);

}  // namespace tessel
