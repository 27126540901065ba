#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/game_state.h"
#include "tests/core/layouts.h"

namespace tessel {
namespace {

using testing::Contains;
using testing::ElementsAre;

TEST(LayoutOfState, ListsRowsThenColumnsThenCages) {
  const Layout layout = LayoutOf(StateWithLayout(kIrregularLayout));
  const Houses& houses = layout.AllHouses();
  ASSERT_EQ(houses.size(), 27u);
  std::size_t next = 0;
  for (const HouseKind kind : {HouseKind::kRow, HouseKind::kColumn, HouseKind::kCage}) {
    for (int index = 0; index < 9; ++index, ++next) {
      EXPECT_EQ(houses[next].kind, kind);
      EXPECT_EQ(houses[next].index, index);
    }
  }
}

TEST(LayoutOfState, RowsRunAcrossAndColumnsDown) {
  const Layout layout = LayoutOf(StateWithLayout(kIrregularLayout));
  const Houses& houses = layout.AllHouses();
  EXPECT_THAT(houses[8].cells, ElementsAre(72, 73, 74, 75, 76, 77, 78, 79, 80));
  EXPECT_THAT(houses[9].cells, ElementsAre(0, 9, 18, 27, 36, 45, 54, 63, 72));
}

TEST(LayoutOfState, CagesAreThoseOfTheState) {
  const GameState state = StateWithLayout(kIrregularLayout);
  const Layout layout = LayoutOf(state);
  const Houses& houses = layout.AllHouses();
  for (std::size_t cage = 0; cage < 9; ++cage) {
    EXPECT_EQ(houses[18 + cage].cells, state.CageCells[cage]);
  }
}

TEST(LayoutOfState, EveryCellIsInOneHouseOfEachKind) {
  const Layout layout = LayoutOf(StateWithLayout(kIrregularLayout));
  const Houses& houses = layout.AllHouses();
  for (int cell = 0; cell < kCellCount; ++cell) {
    std::array<int, 3> count{};
    for (const House& house : houses) {
      if (testing::Value(house.cells, Contains(cell)))
        ++count[static_cast<std::size_t>(house.kind)];
    }
    EXPECT_THAT(count, ElementsAre(1, 1, 1)) << cell;
  }
}

}  // namespace
}  // namespace tessel
