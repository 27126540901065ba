#include "formats/text_line.h"

#include <algorithm>
#include <iterator>

#include "formats/cell_text.h"

namespace tessel::formats {

// More than givens alone, most of the first 81 characters digits and empty marks: which of them are
// none is the reader's to tell. Game IDs of Solo hold many digits, too.
bool LooksLikeTextLine(std::string_view line) {
  std::string significant;
  std::ranges::copy_if(line, std::back_inserter(significant), [](char c) {
    return SkipSpace({&c, 1}, 0) == 0;
  });
  if (significant.size() <= kCellCount || significant.starts_with("9j")) return false;
  const auto isCell = [](char c) { return c == '.' || (c >= '0' && c <= '9'); };
  return 2 * std::ranges::count_if(significant.substr(0, kCellCount), isCell) > kCellCount;
}

Reading ReadTextLine(std::string_view line) {
  const auto givens = FindGrid(line, 0);
  if (!givens) return tl::unexpected(givens.error());
  auto layout = FindLayout(line, givens->end);
  if (!layout) return tl::unexpected(layout.error());
  return DescribedPuzzle{.puzzle = {*std::move(layout), givens->grid, {}}};
}

Writing WriteTextLine(const DescribedPuzzle& puzzle) {
  return GridText(puzzle.puzzle.givens, '.') + " " + CagesText(puzzle.puzzle.layout.Cages()) + "\n";
}

}  // namespace tessel::formats
