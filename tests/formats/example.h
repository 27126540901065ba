// One puzzle that stands in tests/formats/golden in every format.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include "formats/described_puzzle.h"
#include "tests/source_folder.h"

namespace tessel::formats {

inline constexpr std::string_view kExampleGivens =
    ".8.....5.8....7..5....9.....7.169.....43.18.....876.3.....5....3..6....2.9.....8.";
inline constexpr std::string_view kExampleCages =
    "111233333412233555412233675412266675412268875416668875416998875444998875999998777";
inline constexpr std::string_view kExampleSolution =
    "489732651832947165126598347578169423654321879915876234261453798347685912793214586";

inline Grid GridFrom(std::string_view text) {
  Grid grid{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (text[cell] != '.') grid[cell] = static_cast<std::uint8_t>(text[cell] - '0');
  }
  return grid;
}

inline DescribedPuzzle Example() {
  return {.puzzle = {Layout::FromCages(GridFrom(kExampleCages)).value(), GridFrom(kExampleGivens),
                     GridFrom(kExampleSolution)}};
}

// The bytes of examples/irregular.NAME.
inline std::string ExampleIn(std::string_view format) {
  std::ifstream file(SourceFolder() + "/tests/formats/golden/irregular." + std::string(format),
                     std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace tessel::formats
