#include "solver/tables.h"

#include <bit>

namespace tessel::solver {

namespace {

constexpr std::uint16_t kWholeHouse = 511;

// The lane of each house of a cell, and the cell's bit there.
struct Spot {
  int lane;
  std::uint16_t bit;
};
using Spots = std::array<Spot, 3>;

void Include(Places& places, const Spots& spots) {
  for (const auto [lane, bit] : spots) places.lane[lane] |= bit;
}

}  // namespace

Tables::Tables(const Layout& layout)
    : everywhere{}, only{}, house{}, cage{}, line{}, shared{}, restOfCage{}, restOfLine{} {
  AddCells(layout);
  AddIntersections();
}

void Tables::AddCells(const Layout& layout) {
  PerCell<Spots> spots;
  std::array<int, kSide> sizes{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int cageIndex = layout.CageOf(cell) - 1;
    const int place = sizes[cageIndex]++;
    const auto spot = [](int lane, int bit) {
      return Spot{lane, static_cast<std::uint16_t>(1U << bit)};
    };
    spots[cell] = {spot(RowOf(cell), ColumnOf(cell)),
                   spot(kFirstColumnLane + ColumnOf(cell), RowOf(cell)),
                   spot(kFirstCageLane + cageIndex, place)};
    housesOf[cell] = 0;
    for (const auto [lane, bit] : spots[cell]) {
      cellAt[lane][std::countr_zero(bit)] = static_cast<std::uint8_t>(cell);
      housesOf[cell] |= std::uint32_t{1} << lane;
      Include(house[lane], spots[cell]);
    }
  }
  for (int lane = 0; lane < kHouseCount; ++lane) everywhere.lane[lane] = kWholeHouse;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const auto& [row, column, inCage] = spots[cell];
    Include(only[cell], spots[cell]);
    for (int lane = 0; lane < kLaneCount; ++lane) {
      withPeers[cell].lane[lane] = house[row.lane].lane[lane] | house[column.lane].lane[lane] |
                                   house[inCage.lane].lane[lane];
    }
  }
}

void Tables::AddIntersections() {
  int count = 0;
  for (int c = kFirstCageLane; c < kHouseCount; ++c) {
    for (int l = 0; l < kFirstCageLane; ++l) {
      const std::uint16_t inCage = house[l].lane[c];
      const bool severalCells = (inCage & (inCage - 1)) != 0;
      if (!severalCells || inCage == kWholeHouse) continue;
      cage[count] = static_cast<std::uint16_t>(c);
      line[count] = static_cast<std::uint16_t>(l);
      shared[count] = inCage;
      restOfCage[count] = kWholeHouse ^ inCage;
      restOfLine[count] = kWholeHouse ^ house[c].lane[l];
      ++count;
    }
  }
  intersectionGroups = (count + kLaneCount - 1) / kLaneCount;
}

}  // namespace tessel::solver
