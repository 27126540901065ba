#include "formats/layout_line.h"

#include "formats/cell_text.h"

namespace tessel::formats {

Reading ReadLayoutLine(std::string_view line) {
  auto layout = FindLayout(line, 0);
  if (!layout) return tl::unexpected(layout.error());
  return DescribedPuzzle{.puzzle = {*std::move(layout), {}, {}}};
}

}  // namespace tessel::formats
