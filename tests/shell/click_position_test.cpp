#include <cmath>
#include <limits>

#include "tests/shell/disturbance.h"
#include "tests/shell/solving_test.h"

namespace tessel {
namespace {

class ClickPosition : public SolvingTest {
 protected:
  // The digit that a left click at the position in the cell at the board's middle places; 0 for
  // none. "Update Pencilmarks" is unticked, so that every digit can be placed.
  int DigitPlacedAt(double x, double y) {
    constexpr int cell = 40;
    static_assert(!IsKnownGiven(cell));
    Untick();
    program.main.Grid_MouseUp(cell, MouseButton::kLeft, 0, x, y);
    const int digit = Board(cell);
    if (digit != 0) Right(cell, 1);
    return digit;
  }
};

TEST_F(ClickPosition, APositionNamesTheDigitOfItsSquare) {
  EXPECT_EQ(DigitPlacedAt(0, 0), 1);
  EXPECT_EQ(DigitPlacedAt(124.9, 124.9), 1);
  EXPECT_EQ(DigitPlacedAt(125, 0), 2);
  EXPECT_EQ(DigitPlacedAt(250, 0), 3);
  EXPECT_EQ(DigitPlacedAt(0, 125), 4);
  EXPECT_EQ(DigitPlacedAt(187, 187), 5);
  EXPECT_EQ(DigitPlacedAt(0, 250), 7);
  EXPECT_EQ(DigitPlacedAt(374.9, 374.9), 9);
}

TEST_F(ClickPosition, APositionThatNamesNoDigitDoesNothing) {
  constexpr double infinite = std::numeric_limits<double>::infinity();
  const auto clickBesideTheCell = [&] {
    for (const auto& [x, y] :
         {std::pair{0.0, 375.0}, std::pair{375.0, 300.0}, std::pair{0.0, -1.0},
          std::pair{-1.0, 0.0}, std::pair{300.0, -1.0}, std::pair{300.0, -200.0},
          std::pair{1e300, 1e300}, std::pair{-1e300, 0.0}, std::pair{std::nan(""), 0.0},
          std::pair{0.0, std::nan("")}, std::pair{-infinite, 0.0},
          std::pair{infinite, -infinite}}) {
      for (const MouseButton button : kMouseButtons) {
        program.main.Grid_MouseUp(kEmpty, button, 0, x, y);
      }
    }
  };
  ExpectNothingHappens(clickBesideTheCell);
  Untick();
  ExpectNothingHappens(clickBesideTheCell);
}

// Deliberate: only the resulting digit is checked, so a position beside the cell can name the digit
// of a neighbouring line of marks. Positions are rounded down, below zero too.
TEST_F(ClickPosition, APositionBesideTheCellCountsWhenItNamesADigit) {
  EXPECT_EQ(DigitPlacedAt(380, 0), 4);
  EXPECT_EQ(DigitPlacedAt(-1, 125), 3);
  EXPECT_EQ(DigitPlacedAt(-125, 130), 3);
  EXPECT_EQ(DigitPlacedAt(-126, 130), 2);
  EXPECT_EQ(DigitPlacedAt(500, -1), 2);
  EXPECT_EQ(DigitPlacedAt(1000, 0), 9);
  EXPECT_EQ(DigitPlacedAt(-100, 400), 9);
}

}  // namespace
}  // namespace tessel
