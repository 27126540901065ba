// A puzzle keeps its grade however it is turned, mirrored, numbered or named.
#include <gtest/gtest.h>

#include <algorithm>

#include "grade/grade.h"
#include "tests/grade/made_puzzles.h"
#include "tests/sample_count.h"

namespace tessel::grade {
namespace {

using Numbers = std::array<std::uint8_t, kSide + 1>;  // what 0..9 become; 0 stays

// A shuffle of 1..9.
Numbers ShuffledNumbers(RandomStream& random) {
  Numbers numbers{};
  for (int number = 1; number <= kSide; ++number) {
    const std::uint32_t place = 1 + random.Below(static_cast<std::uint64_t>(number));
    numbers[number] = numbers[place];
    numbers[place] = static_cast<std::uint8_t>(number);
  }
  return numbers;
}

// Symmetries 0..7: bit 2 swaps rows and columns, then bits 1 and 0 turn rows and columns round.
int ImageOf(int cell, int symmetry) {
  int row = RowOf(cell);
  int column = ColumnOf(cell);
  if ((symmetry & 4) != 0) std::swap(row, column);
  if ((symmetry & 2) != 0) row = kSide - 1 - row;
  if ((symmetry & 1) != 0) column = kSide - 1 - column;
  return CellAt(row, column);
}

Grid Image(const Grid& grid, int symmetry, const Numbers& numbers) {
  Grid image{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    image[ImageOf(cell, symmetry)] = numbers[grid[cell]];
  }
  return image;
}

Puzzle Image(const Puzzle& puzzle, int symmetry, RandomStream& random) {
  const Grid cages = Image(puzzle.layout.Cages(), symmetry, ShuffledNumbers(random));
  const Numbers digits = ShuffledNumbers(random);
  return {Layout::FromCages(cages).value(), Image(puzzle.givens, symmetry, digits), std::nullopt};
}

// All but the position, which turns with the board.
Grade Unplaced(Grade grade) {
  grade.stuck.reset();
  return grade;
}

TEST(Symmetry, NumbersAreShuffled) {
  RandomStream random(1);
  Numbers numbers = ShuffledNumbers(random);
  EXPECT_NE(numbers, (Numbers{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
  std::ranges::sort(numbers);
  EXPECT_EQ(numbers, (Numbers{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST(Symmetry, NoneChangesTheGrade) {
  PuzzleMaker maker;
  RandomStream random(7);
  for (std::uint64_t seed = 0; seed < Samples<std::uint64_t>(4000); ++seed) {
    const Puzzle puzzle = maker.MakeAnyKind(seed);
    const Grade grade = Unplaced(GradeOf(puzzle.layout, puzzle.givens));
    for (int symmetry = 0; symmetry < 8; ++symmetry) {
      const Puzzle image = Image(puzzle, symmetry, random);
      ASSERT_EQ(Unplaced(GradeOf(image.layout, image.givens)), grade)
          << "seed " << seed << " symmetry " << symmetry;
    }
  }
}

}  // namespace
}  // namespace tessel::grade
