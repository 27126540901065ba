// A puzzle as the player wishes it, made beside the window.
#pragma once

#include <atomic>
#include <functional>
#include <optional>
#include <thread>

#include "core/puzzle.h"
#include "grade/step_kind.h"
#include "maker/recipe.h"

namespace tessel {

struct NewPuzzleWish {
  maker::LayoutKind layout = maker::LayoutKind::kRandom;
  bool symmetricGivens = false;
  std::optional<grade::Level> level{};  // any

  friend bool operator==(const NewPuzzleWish&, const NewPuzzleWish&) = default;
};

// Works on a thread of its own from its construction on, through the puzzles of the seed, until one
// is as wished. Its destructor ends the work, if need be, and waits for that end.
class NewPuzzleMaking {
 public:
  // `made` is called on that thread, with the puzzle and its solution.
  NewPuzzleMaking(const NewPuzzleWish& wish, std::uint64_t seed,
                  std::function<void(const Puzzle&)> made);

  // The puzzles that were not as wished, so far.
  std::uint64_t Refused() const { return refused_; }

 private:
  std::atomic<std::uint64_t> refused_ = 0;
  std::jthread thread_;  // last: joined before what it uses is gone
};

}  // namespace tessel
