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

CellSet CellsIn(const CageNumbers& cages, int cage) {
  CellSet cells;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (cages[cell] == cage) cells = cells | CellSet::Of(cell);
  }
  return cells;
}

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
  for (int cage = 1; cage <= kSide; ++cage) {
    if (auto error = FaultOfCage(cage, CellsIn(cages, cage), shape)) return error;
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

// Every cell is appended to its row, its column and its cage, in increasing order.
Layout::Layout(const CageNumbers& cages) : cages_(cages), houses_{}, peers_{} {
  std::array<CellSet, 3 * kSide> sets{};
  std::array<std::size_t, 3 * kSide> sizes{};
  for (std::size_t number = 0; number < houses_.size(); ++number) {
    houses_[number].kind = kHouseKinds[number / kSide];
    houses_[number].index = static_cast<int>(number % kSide);
  }
  const auto housesOf = [&](int cell) {
    return std::array{RowOf(cell), kSide + ColumnOf(cell), kFirstCage + cages[cell] - 1};
  };
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (const int house : housesOf(cell)) {
      houses_[house].cells[sizes[house]++] = static_cast<std::int16_t>(cell);
      sets[house] = sets[house] | CellSet::Of(cell);
    }
  }
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (const int house : housesOf(cell)) peers_[cell] = peers_[cell] | sets[house];
    peers_[cell] = peers_[cell] - CellSet::Of(cell);
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
