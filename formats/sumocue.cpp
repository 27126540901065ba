#include "formats/sumocue.h"

#include "formats/cell_text.h"

namespace tessel::formats {

namespace {

constexpr std::string_view kStart = "SumoCueV1";
constexpr std::size_t kLettersOfCell = 4;

struct Cell {
  std::uint8_t value = 0;
  std::uint8_t cage = 0;
};

bool IsBetween(char character, char least, char most) {
  return character >= least && character <= most;
}

tl::expected<Cell, Fault> CellFrom(std::string_view line, std::size_t offset) {
  const std::array<std::pair<std::string_view, std::string_view>, kLettersOfCell> pattern{
      {{"==", "'='"}, {"09", "a digit 0 to 9"}, {"JJ", "'J'"}, {"08", "a cage 0 to 8"}}};
  for (std::size_t i = 0; i < kLettersOfCell; ++i) {
    const auto& [range, name] = pattern[i];
    const std::size_t at = offset + i;
    if (at >= line.size() || !IsBetween(line[at], range[0], range[1])) {
      return tl::unexpected(Fault{at, "", std::string(name), ShownAt(line, at)});
    }
  }
  return Cell{static_cast<std::uint8_t>(line[offset + 1] - '0'),
              static_cast<std::uint8_t>(line[offset + 3] - '0' + 1)};
}

struct Cells {
  Grid givens{};
  CageNumbers cages{};
};

// All 81 from there, with which the line ends.
tl::expected<Cells, Fault> CellsFrom(std::string_view line, std::size_t offset) {
  Cells cells;
  for (int i = 0; i < kCellCount; ++i, offset += kLettersOfCell) {
    const auto cell = CellFrom(line, offset);
    if (!cell) return tl::unexpected(cell.error());
    cells.givens[i] = cell->value;
    cells.cages[i] = cell->cage;
  }
  offset = SkipSpace(line, offset);
  if (offset == line.size()) return cells;
  return tl::unexpected(
      Fault{offset, "", "the end of the line after 81 cells", ShownAt(line, offset)});
}

Fault CageFault(std::size_t start, const LayoutError& error) {
  std::string found = "cage " + std::to_string(error.cage - 1);
  if (error.fault == LayoutError::Fault::kNotNineCells) {
    found += " with " + std::to_string(error.size) + " cells";
  } else {
    found += " in separate parts";
  }
  return {start + kLettersOfCell * static_cast<std::size_t>(error.cell), "",
          "nine cages of nine connected cells", std::move(found)};
}

}  // namespace

bool LooksLikeSumoCue(std::string_view line) {
  return line.substr(SkipSpace(line, 0)).starts_with("SumoCue");
}

Reading ReadSumoCue(std::string_view line) {
  std::size_t offset = SkipSpace(line, 0);
  if (!line.substr(offset).starts_with(kStart)) {
    return tl::unexpected(Fault{offset, "", std::string(kStart), ShownAt(line, offset)});
  }
  offset += kStart.size();
  const auto cells = CellsFrom(line, offset);
  if (!cells) return tl::unexpected(cells.error());
  const auto& [givens, cages] = *cells;
  auto layout = Layout::FromCages(cages);
  if (!layout) return tl::unexpected(CageFault(offset, layout.error()));
  return DescribedPuzzle{.puzzle = {*std::move(layout), givens, {}}};
}

Writing WriteSumoCue(const DescribedPuzzle& puzzle) {
  std::string line(kStart);
  for (int cell = 0; cell < kCellCount; ++cell) {
    line += {'=', static_cast<char>('0' + puzzle.puzzle.givens[cell]), 'J',
             static_cast<char>('0' + puzzle.puzzle.layout.CageOf(cell) - 1)};
  }
  return line + "\n";
}

}  // namespace tessel::formats
