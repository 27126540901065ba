#include "tests/paper/sample_puzzles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>

#include "core/random_stream.h"

namespace tessel::paper {

namespace {

constexpr std::string_view kGivens =
    ".8.....5.8....7..5....9.....7.169.....43.18.....876.3.....5....3..6....2.9.....8.";
constexpr std::string_view kCages =
    "111233333412233555412233675412266675412268875416668875416998875444998875999998777";
constexpr std::string_view kSolution =
    "489732651832947165126598347578169423654321879915876234261453798347685912793214586";

Grid GridOf(std::string_view digits) {
  Grid grid{};
  std::ranges::transform(digits, grid.begin(), [](char digit) {
    return static_cast<std::uint8_t>(digit == '.' ? 0 : digit - '0');
  });
  return grid;
}

// The cell that symmetry 0..7 of the square brings to `cell`.
int SourceOf(int cell, int symmetry) {
  int row = RowOf(cell);
  int column = ColumnOf(cell);
  if ((symmetry & 1) != 0) row = kSide - 1 - row;
  if ((symmetry & 2) != 0) column = kSide - 1 - column;
  return (symmetry & 4) != 0 ? CellAt(column, row) : CellAt(row, column);
}

using Names = std::array<std::uint8_t, kSide + 1>;

Names RandomNames(RandomStream& random) {
  Names names{};
  std::iota(names.begin(), names.end(), std::uint8_t{0});
  for (int last = kSide; last > 1; --last) std::swap(names[last], names[1 + random.Below(last)]);
  return names;
}

Grid Varied(const Grid& grid, int symmetry, const Names& names) {
  Grid varied{};
  for (int cell = 0; cell < kCellCount; ++cell)
    varied[cell] = names[grid[SourceOf(cell, symmetry)]];
  return varied;
}

}  // namespace

Puzzle SamplePuzzle() {
  return {*Layout::FromCages(GridOf(kCages)), GridOf(kGivens), GridOf(kSolution)};
}

std::vector<BookletPuzzle> SamplePuzzles(int count) {
  const std::array grades{std::optional(PrintedGrade{1, "Easy"}),
                          std::optional(PrintedGrade{2, "Moderate"}),
                          std::optional(PrintedGrade{3, "Tricky"}), std::optional<PrintedGrade>()};
  const Puzzle sample = SamplePuzzle();
  const Names same{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
  std::vector<BookletPuzzle> puzzles;
  for (int k = 0; k < count; ++k) {
    RandomStream random(1, static_cast<std::uint64_t>(k), 0);
    const Names names = k == 0 ? same : RandomNames(random);
    const int symmetry = k % 8;
    puzzles.push_back(
        {{*Layout::FromCages(Varied(sample.layout.Cages(), symmetry, same)),
          Varied(sample.givens, symmetry, names), Varied(*sample.solution, symmetry, names)},
         grades[static_cast<std::size_t>(k) % grades.size()]});
  }
  return puzzles;
}

std::string BookletBytes(std::span<const BookletPuzzle> puzzles, const BookletOptions& options) {
  std::string bytes;
  const auto pages = WriteBooklet(puzzles, options, [&](std::span<const unsigned char> more) {
    bytes.append(more.begin(), more.end());
    return true;
  });
  EXPECT_TRUE(pages) << pages.error();
  return bytes;
}

}  // namespace tessel::paper
