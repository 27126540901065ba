#include "formats/sds.h"

#include <algorithm>

#include "core/puzzle_record.h"
#include "formats/cell_text.h"

namespace tessel::formats {

namespace {

constexpr std::size_t kSolutionOffset = kCellCount;
constexpr std::size_t kCagesOffset = 2 * kCellCount;

std::string Number(char byte) {
  return "byte " + std::to_string(static_cast<unsigned char>(byte));
}

// `offset`: of the byte of cell 0.
Fault ByteFault(std::size_t offset, int cell, int least, char byte) {
  return {offset + static_cast<std::size_t>(cell), "",
          "a byte from " + std::to_string(least) + " to 9 for " + CellName(cell), Number(byte)};
}

// The 81 bytes from `offset` on, each of `least` to 9.
tl::expected<Grid, Fault> Bytes(std::string_view record, std::size_t offset, int least) {
  Grid grid{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const char byte = record[offset + static_cast<std::size_t>(cell)];
    if (byte < least || byte > kSide) {
      return tl::unexpected(ByteFault(offset, cell, least, byte));
    }
    grid[cell] = static_cast<std::uint8_t>(byte);
  }
  return grid;
}

Fault CageFault(const LayoutError& error) {
  return {kCagesOffset + static_cast<std::size_t>(error.cell), "",
          "nine cages of nine connected cells", error.message};
}

// Where the solution and a given differ.
std::optional<Fault> Contradiction(const Grid& givens, const Grid& solution) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (givens[cell] == 0 || givens[cell] == solution[cell]) continue;
    return Fault{
        kSolutionOffset + static_cast<std::size_t>(cell), "",
        "the given " + std::to_string(givens[cell]) + " of " + CellName(cell) + " in the solution",
        std::to_string(solution[cell])};
  }
  return std::nullopt;
}

tl::expected<std::optional<Grid>, Fault> Solution(std::string_view record, const Grid& givens) {
  const std::string_view bytes = record.substr(kSolutionOffset, kCellCount);
  if (std::ranges::all_of(bytes, [](char byte) { return byte == 0; })) return std::nullopt;
  const auto solution = Bytes(record, kSolutionOffset, 1);
  if (!solution) return tl::unexpected(solution.error());
  if (auto fault = Contradiction(givens, *solution)) return tl::unexpected(*std::move(fault));
  return *solution;
}

std::string BytesOf(const Grid& grid) {
  return {grid.begin(), grid.end()};
}

std::string EndAfter(std::size_t bytes) {
  const bool isOverwritten = RecordsIn(static_cast<std::int64_t>(bytes)) == 0;
  return "the end of the file after " + std::to_string(bytes) +
         (isOverwritten ? "; the next puzzle saved overwrites them" : "");
}

}  // namespace

bool LooksLikeSds(std::string_view start) {
  return std::ranges::any_of(start.substr(0, kSdsRecordSize), [](char byte) {
    return byte >= 0 && byte < ' ' && SkipSpace({&byte, 1}, 0) == 0;
  });
}

Reading ReadSds(std::string_view record) {
  if (record.size() != kSdsRecordSize) {
    return tl::unexpected(
        Fault{record.size(), "", "a record of 243 bytes", EndAfter(record.size())});
  }
  const auto givens = Bytes(record, 0, 0);
  if (!givens) return tl::unexpected(givens.error());
  const auto solution = Solution(record, *givens);
  if (!solution) return tl::unexpected(solution.error());
  const auto cages = Bytes(record, kCagesOffset, 1);
  if (!cages) return tl::unexpected(cages.error());
  auto layout = Layout::FromCages(*cages);
  if (!layout) return tl::unexpected(CageFault(layout.error()));
  return DescribedPuzzle{.puzzle = {*std::move(layout), *givens, *solution}};
}

Writing WriteSds(const DescribedPuzzle& puzzle) {
  return BytesOf(puzzle.puzzle.givens) + BytesOf(puzzle.puzzle.solution.value_or(Grid{})) +
         BytesOf(puzzle.puzzle.layout.Cages());
}

}  // namespace tessel::formats
