// The puzzles of a file, read and graded beside the window.
#pragma once

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "core/puzzle_record.h"
#include "formats/puzzle_reader.h"
#include "grade/step_kind.h"

namespace tessel {

struct ListedPuzzle {
  std::uint64_t number = 0;  // the place in the file: of the record or line, from 1
  PuzzleRecord record;       // without a solution where none was told
};

// What is known of a listed puzzle's level.
enum class ListedGrade : std::uint8_t { kPending, kLevel, kNotOne };
struct ListedLevel {
  ListedGrade grade = ListedGrade::kPending;
  grade::Level level = grade::Level::kEasy;  // kLevel

  friend bool operator==(const ListedLevel&, const ListedLevel&) = default;
};

// All are called on the thread of the listing: puzzles as they are found; how the reading ended;
// then the levels of the puzzles from `first` on, in the order in which they were found.
struct ListingTakers {
  std::function<void(std::vector<ListedPuzzle>)> found;
  std::function<void(std::string trouble)> ended;  // "" where everything was read
  std::function<void(std::size_t first, std::vector<ListedLevel>)> graded;
};

// Works on a thread of its own from its construction on. Its destructor ends the work, if need be,
// and waits for that end.
class PuzzleListing {
 public:
  // What stands behind so many puzzles is not listed: they take 25 MB.
  static constexpr std::size_t kMaxPuzzles = 100'000;

  // `name` stands in the faults that are told.
  PuzzleListing(formats::ByteSource source, std::string name, ListingTakers takers);

 private:
  std::jthread thread_;
};

Puzzle PuzzleOf(const PuzzleRecord& record);

}  // namespace tessel
