// Puzzles made beside the window.
#include "shell/new_puzzle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>

#include "grade/grader.h"
#include "shell/puzzle_check.h"

namespace tessel {
namespace {

Puzzle Made(const NewPuzzleWish& wish, std::uint64_t seed = 1) {
  std::promise<Puzzle> made;
  const NewPuzzleMaking making(wish, seed,
                               [&made](const Puzzle& puzzle) { made.set_value(puzzle); });
  return made.get_future().get();
}

bool LooksTheSameTurned(const Grid& givens) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if ((givens[cell] == 0) != (givens[kCellCount - 1 - cell] == 0)) return false;
  }
  return true;
}

TEST(NewPuzzle, HasItsOneSolution) {
  const Puzzle puzzle = Made({});
  EXPECT_EQ(CheckPuzzle(puzzle).puzzle, puzzle);
}

TEST(NewPuzzle, DependsOnTheSeedAlone) {
  EXPECT_EQ(Made({}), Made({}));
  EXPECT_NE(Made({}), Made({}, 2));
}

TEST(NewPuzzle, HasTheLayoutAndTheGivensThatAreWished) {
  EXPECT_EQ(Made({.layout = maker::LayoutKind::kRegular}).layout, Layout::Regular());
  const Puzzle puzzle = Made({.layout = maker::LayoutKind::kRotational, .symmetricGivens = true});
  EXPECT_TRUE(LooksTheSameTurned(puzzle.givens));
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int cage = puzzle.layout.CageOf(cell);
    const int other = puzzle.layout.CageOf(kCellCount - 1 - cell);
    for (const int member : puzzle.layout.CellsOf(cage)) {
      EXPECT_EQ(puzzle.layout.CageOf(kCellCount - 1 - member), other);
    }
  }
}

TEST(NewPuzzle, HasTheLevelThatIsWished) {
  grade::Grader grader;
  for (int level = 1; level <= grade::kLevelCount; ++level) {
    const auto wished = static_cast<grade::Level>(level);
    EXPECT_EQ(grader.GradeOf(Made({.level = wished}))->level, wished);
  }
}

TEST(NewPuzzle, EndsWhenItIsNotWantedAnyMore) {
  bool made = false;
  {
    const NewPuzzleMaking making(
        {.layout = maker::LayoutKind::kRegular, .level = grade::Level::kHard}, 1,
        [&made](const Puzzle&) { made = true; });
    while (making.Refused() == 0 && !made) std::this_thread::yield();
  }
  SUCCEED();
}

}  // namespace
}  // namespace tessel
