// Boards in JSON, as the link formats have them: nine lists of nine objects.
#pragma once

#include <array>
#include <string>

#include "formats/link.h"

namespace tessel::formats {

using CellsOfJson = PerCell<const Json*>;

// The member of that name; nullptr where there is none.
const Json* Member(const Json& object, const char* name);
// "/grid/0/3"
std::string CellPath(const std::string& path, int cell);

// The 81 objects of the member `name`, which live as long as `root`.
tl::expected<CellsOfJson, Fault> CellObjects(const Json& root, const char* name);

// The "value" of each cell that `counts`; 0 where there is none.
template <typename Counts>
tl::expected<Grid, Fault> DigitsOf(const CellsOfJson& cells, const std::string& path,
                                   const Counts& counts) {
  Grid grid{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const Json* const value = Member(*cells[cell], "value");
    if (value == nullptr || value->is_null() || !counts(*cells[cell])) continue;
    const int digit = DigitOf(*value);
    if (digit == 0) {
      return tl::unexpected(
          JsonFault(CellPath(path, cell) + "/value", "a digit from 1 to 9", value));
    }
    grid[cell] = static_cast<std::uint8_t>(digit);
  }
  return grid;
}

// The pencil marks of each cell, lists of digits; nothing where no cell has one.
std::optional<MaskBoard> MarksOf(const CellsOfJson& cells, const char* name);

// The puzzle, once its parts are known. `words` has its title and author.
Reading Described(const Json& root, const CageNumbers& cages, const std::string& cagesPath,
                  const Grid& givens, const Json* solution, const Json& words);

}  // namespace tessel::formats
