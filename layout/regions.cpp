#include "layout/regions.h"

#include <array>
#include <cassert>

namespace tessel {

namespace {

// Three rows of three cells, bit 3 * row + column, the middle one at bit 4.
using Block = unsigned;

// The block around a cell; what lies beyond the board is empty.
constexpr Block BlockAround(CellSet cells, int cell) {
  constexpr int seam = CellSet::kUpperCells;
  const int row = RowOf(cell);
  // The rows above, of, and below the cell.
  const std::uint64_t rows =
      row < 5 ? (cells.upper << kSide | cells.lower << (seam + kSide)) >> (kSide * row)
              : (cells.lower << kSide | cells.upper >> (seam - kSide)) >> (kSide * (row - 5));
  Block block = 0;
  for (int i = 0; i < 3; ++i) {
    const auto bits = static_cast<Block>(rows >> (kSide * i)) & 0x1FF;
    block |= (bits << 1 >> ColumnOf(cell) & 7) << (3 * i);
  }
  return block;
}

// Whether there are cells beside the middle that are connected to each other through its eight
// neighbours. Taking the middle out cannot part a region then.
constexpr bool LocallyConnected(Block block) {
  constexpr std::array sides{1, 5, 7, 3};    // all around
  constexpr std::array corners{2, 8, 6, 0};  // the one after each side
  const auto holds = [block](int bit) { return (block >> bit & 1) != 0; };
  int beside = 0;
  int parts = 0;
  for (int i = 0; i < 4; ++i) {
    const bool joinsNext = holds(corners[i]) && holds(sides[(i + 1) % 4]);
    if (holds(sides[i])) ++beside;
    if (holds(sides[i]) && !joinsNext) ++parts;
  }
  return beside > 0 && parts <= 1;
}

constexpr auto kLocallyConnected = [] {
  std::array<bool, 512> table{};
  for (Block block = 0; block < table.size(); ++block) table[block] = LocallyConnected(block);
  return table;
}();

}  // namespace

// Floods the board only where the eight cells around the one taken out leave the question open.
Regions Regions::Without(int cell) const {
  assert(All().Contains(cell));
  const CellSet gone = CellSet::Of(cell);
  const CellSet left = All() - gone;
  if (!kLocallyConnected[BlockAround(left, cell)]) return RegionsOf(left);
  return {first - gone, second - gone, others - gone};
}

Regions RegionsOf(CellSet cells) {
  const CellSet first = FirstRegionOf(cells);
  const CellSet second = FirstRegionOf(cells - first);
  return {first, second, cells - first - second};
}

}  // namespace tessel
