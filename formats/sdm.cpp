#include "formats/sdm.h"

#include <algorithm>

#include "formats/cell_text.h"

namespace tessel::formats {

bool LooksLikeSdm(std::string_view line) {
  const auto isCell = [](char c) { return c == '.' || (c >= '0' && c <= '9'); };
  const std::size_t start = SkipSpace(line, 0);
  return start < line.size() && isCell(line[start]);
}

Reading ReadSdm(std::string_view line) {
  const auto givens = FindGrid(line, 0);
  if (!givens) return tl::unexpected(givens.error());
  const std::size_t end = SkipSpace(line, givens->end);
  if (end < line.size()) {
    return tl::unexpected(Fault{end, "", "the end of the line after 81 cells", ShownAt(line, end)});
  }
  return DescribedPuzzle{.puzzle = {Layout::Regular(), givens->grid, {}}};
}

Writing WriteSdm(const DescribedPuzzle& puzzle) {
  // Cages may be numbered in any order and still be the boxes.
  const CageNumbers& cages = puzzle.puzzle.layout.Cages();
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int corner = CellAt(RowOf(cell) / 3 * 3, ColumnOf(cell) / 3 * 3);
    if (cages[cell] != cages[corner]) {
      return tl::unexpected<std::string>(
          "its cages are irregular, and .sdm would make 3x3 boxes of them");
    }
  }
  return GridText(puzzle.puzzle.givens, '0') + "\n";
}

}  // namespace tessel::formats
