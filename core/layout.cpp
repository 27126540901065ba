#include "core/layout.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tessel {

namespace {

using Fault = LayoutError::Fault;

std::string CageNamed(int cage) {
  return "cage " + std::to_string(cage);
}

// The cells of each cage, at index cage - 1; the numbers must be 1..9.
std::array<CellSet, kSide> CellsOfCages(const CageNumbers& cages) {
  std::array<CellSet, kSide> cells{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    CellSet& cage = cells[cages[cell] - 1];
    cage = cage | CellSet::Of(cell);
  }
  return cells;
}

// What rows and columns make of every layout: their houses, and for each cell the cells in its row
// and its column. Layouts are made by the hundred thousand.
struct Lines {
  Houses houses{};
  PerCell<CellSet> cells{};
};

constexpr Lines kLines = [] {
  Lines lines;
  for (int number = 0; number < 3 * kSide; ++number) {
    House& house = lines.houses[number];
    house.kind = kHouseKinds[number / kSide];
    house.index = number % kSide;
    for (int k = 0; k < kSide; ++k) {
      const bool row = house.kind == HouseKind::kRow;
      house.cells[k] =
          static_cast<std::int16_t>(row ? CellAt(house.index, k) : CellAt(k, house.index));
    }
  }
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int k = 0; k < kSide; ++k) {
      lines.cells[cell] = lines.cells[cell] | CellSet::Of(CellAt(RowOf(cell), k)) |
                          CellSet::Of(CellAt(k, ColumnOf(cell)));
    }
  }
  return lines;
}();

std::optional<LayoutError> FaultOfNumbers(const CageNumbers& cages) {
  const auto outside = [](int cage) { return cage < 1 || cage > kSide; };
  const auto* const found = std::ranges::find_if(cages, outside);
  if (found == cages.end()) return std::nullopt;
  return LayoutError{Fault::kNumberOutOfRange, *found, static_cast<int>(found - cages.begin()), 0,
                     CageNamed(*found) + " is no number from 1 to 9"};
}

std::optional<LayoutError> FaultOfCage(int cage, CellSet cells, Layout::Shape shape) {
  const int size = cells.Count();
  const int cell = cells.Empty() ? 0 : cells.First();
  if (size != kSide) {
    return LayoutError{Fault::kNotNineCells, cage, cell, size,
                       CageNamed(cage) + " has " + std::to_string(size) + " cells instead of 9"};
  }
  if (shape == Layout::Shape::kAny || FirstRegionOf(cells) == cells) return std::nullopt;
  return LayoutError{Fault::kNotConnected, cage, cell, size, CageNamed(cage) + " is not connected"};
}

std::optional<LayoutError> FaultOf(const CageNumbers& cages, Layout::Shape shape) {
  if (auto error = FaultOfNumbers(cages)) return error;
  const auto cells = CellsOfCages(cages);
  for (int cage = 1; cage <= kSide; ++cage) {
    if (auto error = FaultOfCage(cage, cells[cage - 1], shape)) return error;
  }
  return std::nullopt;
}

constexpr CageNumbers kBoxes = [] {
  CageNumbers boxes{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    boxes[cell] = static_cast<std::uint8_t>(1 + 3 * (RowOf(cell) / 3) + ColumnOf(cell) / 3);
  }
  return boxes;
}();

}  // namespace

// Every cell is appended to its cage, in increasing order.
Layout::Layout(const CageNumbers& cages) : cages_(cages), houses_(kLines.houses), peers_{} {
  const auto cells = CellsOfCages(cages);
  std::array<std::size_t, kSide> sizes{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const auto cage = static_cast<std::size_t>(cages[cell] - 1);
    houses_[kFirstCage + cage].cells[sizes[cage]++] = static_cast<std::int16_t>(cell);
    peers_[cell] = (kLines.cells[cell] | cells[cage]) - CellSet::Of(cell);
  }
}

tl::expected<Layout, LayoutError> Layout::FromCages(const CageNumbers& cages, Shape shape) {
  if (auto error = FaultOf(cages, shape)) return tl::unexpected(*std::move(error));
  return Layout(cages);
}

const Layout& Layout::Regular() {
  static const Layout regular(kBoxes);
  return regular;
}

}  // namespace tessel
