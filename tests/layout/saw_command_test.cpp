// The Saw button, from the click to the board.
#include <gtest/gtest.h>

#include "tests/fakes/test_program.h"
#include "tests/layout/layout_checks.h"
#include "tests/oracle/search/independent_solver.h"

namespace tessel {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kSeeds = 3;
constexpr std::array<std::uint64_t, 1> kUnfillable{9};
#else
constexpr std::uint64_t kSeeds = 100;
constexpr std::array<std::uint64_t, 4> kUnfillable{9, 198, 405, 508};
#endif

TEST(SawCommand, TakesDigitsAndMarkColoursOffTheBoard) {
  TestProgram program(1);
  program.MakePuzzle();
  EXPECT_NE(program.Display().Mark(0, 1).colour, kBlack);
  program.main.Click(Button::CommandSaw);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(program.Display().Cell(cell).text, 0);
    for (int digit = 1; digit <= 9; ++digit) {
      ASSERT_EQ(program.Display().Mark(cell, digit).colour, kBlack);
    }
  }
  EXPECT_TRUE(IsPaintedInCageColours(program.State(), program.Display()));
}

TEST(SawCommand, MakeRegularTakesPrecedenceOverRotationalAndDoesNotBeep) {
  TestProgram program(1);
  program.Tick(CheckBox::MakeRegular);
  program.Tick(CheckBox::Rotational);
  program.main.Click(Button::CommandSaw);
  EXPECT_EQ(program.State().CageOfCell, oracle::RegularLayout().cageOfCell);
  EXPECT_EQ(program.State().CageCells, oracle::RegularLayout().cageCells);
  EXPECT_EQ(program.view.beeps, 0);
  program.Tick(CheckBox::MakeRegular, false);
  program.main.Click(Button::CommandSaw);
  EXPECT_TRUE(IsLayout(program.State()));
  EXPECT_TRUE(IsRotational(program.State()));
  EXPECT_EQ(program.view.beeps, 1);
}

TEST(SawCommand, ShowsItsTimeInTheCaption) {
  TestProgram program(1);
  program.main.Click(Button::CommandSaw);
  EXPECT_EQ(program.Display().Caption(), "Tessel Sudoku - Sawed in 1.23 ms");
  EXPECT_EQ(program.State().Stopwatch, nullptr);
}

// From some seeds the walk first comes to a layout that has no filling.
TEST(SawCommand, EveryLayoutCanBeFilled) {
  TestProgram program(0);
  for (const std::uint64_t seed : kUnfillable) {
    program.clock.nextSeed = seed;
    program.main.Click(Button::CommandSaw);
    const auto layout = oracle::LayoutOf(program.State().CageOfCell);
    EXPECT_EQ(oracle::IndependentSolver(layout).HasFilling(1'000'000), true) << seed;
  }
  for (std::uint64_t seed = 1000; seed < 1000 + kSeeds; ++seed) {
    program.clock.nextSeed = seed;
    program.Tick(CheckBox::Rotational, seed % 2 == 0);
    program.main.Click(Button::CommandSaw);
    const auto layout = oracle::LayoutOf(program.State().CageOfCell);
    EXPECT_EQ(oracle::IndependentSolver(layout).HasFilling(1'000'000), true) << seed;
  }
}

}  // namespace
}  // namespace tessel
