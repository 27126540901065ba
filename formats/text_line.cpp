#include "formats/text_line.h"

#include <algorithm>

#include "formats/cell_text.h"

namespace tessel::formats {

namespace {

bool IsCellText(char character) {
  return std::string_view("123456789.0").find(character) != std::string_view::npos;
}

}  // namespace

// Two groups, or one that is too long for givens alone; bad characters are the reader's to tell.
bool LooksLikeTextLine(std::string_view line) {
  const std::size_t start = SkipSpace(line, 0);
  const auto significant = std::ranges::count_if(line, [](char c) {
    return SkipSpace({&c, 1}, 0) == 0;
  });
  return significant > kCellCount && IsCellText(line[start]);
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
