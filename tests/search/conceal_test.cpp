#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/oracle/search/independent_solver.h"
#include "tests/oracle/search/literal_conceal.h"
#include "tests/oracle/search/samples.h"
#include "tests/search/search_rig.h"

namespace tessel {
namespace {

using oracle::IndependentSolver;
using oracle::LiteralConceal;
using oracle::LiteralLayout;

int EmptyCells(const CellDigits& grid) {
  return static_cast<int>(std::count(grid.begin(), grid.end(), 0));
}

struct ConcealingTest : testing::Test {
  void Prepare(const oracle::Layout& layout, std::uint64_t seed) {
    rig.Use(layout);
    rig.state.WorkGrid = solution = oracle::AnySolution(layout, seed).value();
    rig.clock.nextSeed = seed;
  }
  void PrepareRandom(std::uint64_t seed) {
    Prepare(oracle::SampleLayout(seed, LiteralLayout::Mode::kRandom), seed);
  }
  void InPairs() { rig.form.SetChecked(CheckBox::ConcealRotational, true); }
  bool Conceal() { return rig.concealer.ConcealCells2ValidTessel(); }

  SearchRig rig;
  CellDigits solution{};
};

TEST_F(ConcealingTest, HidesAtMost57CellsSingly) {
  int moreCouldBeHidden = 0;
  for (std::uint64_t seed = 0; seed < 8; ++seed) {
    PrepareRandom(seed);
    ASSERT_TRUE(Conceal());
    CellDigits puzzle = rig.state.Puzzle;
    ASSERT_EQ(EmptyCells(puzzle), 57) << seed;
    IndependentSolver solver(oracle::LayoutOf(rig.state.CageOfCell));
    for (std::int16_t& given : puzzle) {
      const std::int16_t kept = std::exchange(given, std::int16_t{0});
      moreCouldBeHidden += kept != 0 && solver.CountSolutions(puzzle, 2) == 1;
      given = kept;
    }
  }
  EXPECT_GT(moreCouldBeHidden, 0);
}

TEST_F(ConcealingTest, HidesAtMost58CellsInPairs) {
  InPairs();
  PrepareRandom(0);
  ASSERT_TRUE(Conceal());
  EXPECT_EQ(EmptyCells(rig.state.Puzzle), 58);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(rig.state.Puzzle[cell] == 0, rig.state.Puzzle[HalfTurnOf(cell)] == 0) << cell;
  }
}

// Deliberate: the centre is its own partner and counts 2, so a pair fewer is hidden.
TEST_F(ConcealingTest, CentreCellCountsAsAPair) {
  InPairs();
  PrepareRandom(1);
  ASSERT_TRUE(Conceal());
  EXPECT_EQ(rig.state.Puzzle[kCentreCell], 0);
  EXPECT_EQ(EmptyCells(rig.state.Puzzle), 57);
}

TEST_F(ConcealingTest, EndShowsTimeAndPuzzleAndBeeps) {
  PrepareRandom(3);
  ASSERT_TRUE(Conceal());
  EXPECT_EQ(rig.form.Caption(), "Tessel Sudoku - Concealed in 1.23 ms");
  EXPECT_EQ(rig.view.beeps, 1);
  EXPECT_EQ(rig.state.Stopwatch, nullptr);
  EXPECT_EQ(rig.state.WorkGrid, solution);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(rig.form.Cell(cell).text, rig.state.Puzzle[cell]);
    for (int digit = 1; digit <= 9; ++digit) {
      EXPECT_EQ(rig.form.Mark(cell, digit).colour, kCageColours[rig.state.CageOfCell[cell] - 1]);
    }
  }
}

TEST_F(ConcealingTest, StopClearsTheDigitsAndLeavesThePuzzleAlone) {
  PrepareRandom(3);
  rig.state.Puzzle.fill(6);
  const std::string caption = rig.form.Caption();
  rig.view.onPump = [&](long pump) {
    if (pump == 40) rig.state.StopRequested = true;
  };
  EXPECT_FALSE(Conceal());
  EXPECT_GE(rig.view.pumps, 40);
  EXPECT_FALSE(rig.state.StopRequested);
  EXPECT_EQ(rig.state.WorkGrid, solution);
  EXPECT_THAT(rig.state.Puzzle, testing::Each(6));
  EXPECT_EQ(rig.form.Caption(), caption);
  EXPECT_EQ(rig.view.beeps, 0);
  EXPECT_NE(rig.state.Stopwatch, nullptr);
  for (int cell = 0; cell < kCellCount; ++cell) EXPECT_EQ(rig.form.Cell(cell).text, 0);
}

TEST_F(ConcealingTest, EveryRunStartsFromTheSameSolution) {
  PrepareRandom(5);
  ASSERT_TRUE(Conceal());
  const CellDigits first = rig.state.Puzzle;
  ASSERT_TRUE(Conceal());  // the clock has given another seed
  EXPECT_NE(rig.state.Puzzle, first);
  EXPECT_EQ(rig.state.WorkGrid, solution);
  rig.clock.nextSeed = 5;
  ASSERT_TRUE(Conceal());
  EXPECT_EQ(rig.state.Puzzle, first);
}

// While uniqueness is tested the board shows what the pass before has left.
TEST_F(ConcealingTest, DigitsAreRedrawnAfterEveryPass) {
  PrepareRandom(7);
  rig.view.onPump = [&](long) {
    int different = 0;
    int shown = 0;
    for (int cell = 0; cell < kCellCount; ++cell) {
      shown += rig.form.Cell(cell).text != 0;
      different += rig.form.Cell(cell).text != rig.state.WorkGrid[cell];
    }
    if (shown > 0) {
      ASSERT_EQ(different, 1);
    }
  };
  ASSERT_TRUE(Conceal());
}

// Draws the cells that it is told to draw, and counts those drawn beyond.
class ScriptedCells final : public RandomSource {
 public:
  explicit ScriptedCells(std::vector<int> cells) : cells_(std::move(cells)) {}
  void Seed(std::uint64_t) override {}
  float Next() override {
    if (next_ < cells_.size()) return (static_cast<float>(cells_[next_++]) + 0.5F) / 81;
    ++drawnBeyond;
    return afterwards_.Next();
  }
  bool IsOver() const { return next_ == cells_.size(); }
  int drawnBeyond = 0;

 private:
  std::vector<int> cells_;
  std::size_t next_ = 0;
  SeededRandom afterwards_{1};
};

std::vector<int> CellsFrom(int first, int last) {
  std::vector<int> cells;
  for (int cell = first; cell <= last; ++cell) cells.push_back(cell);
  return cells;
}

// A solution in which one wrong digit clashes with the givens around it: every hiding is refused
// until the wrong digit's own.
struct RefusedConcealing : ConcealingTest {
  RefusedConcealing() { Prepare(oracle::RegularLayout(), 1); }
  void Spoil(int cell) {
    rig.state.WorkGrid[cell] = static_cast<std::int16_t>(rig.state.WorkGrid[cell] % 9 + 1);
    spoilt = rig.state.WorkGrid;
  }
  // Conceals with cells drawn by `script`, in the order in which cells are cleared on the board.
  std::vector<int> OrderOfHiding(ScriptedCells& script) {
    std::vector<int> hidden;
    for (int cell = 0; cell < kCellCount; ++cell) rig.form.SetCellText(cell, spoilt[cell]);
    rig.view.onChange = [&](FormPart part, int cell) {
      if (part != FormPart::kCell || rig.form.Cell(cell).text != 0) return;
      if (std::find(hidden.begin(), hidden.end(), cell) == hidden.end()) hidden.push_back(cell);
    };
    Concealing concealer(rig.state, rig.form, rig.view, script, rig.clock, rig.search);
    EXPECT_TRUE(concealer.ConcealCells2ValidTessel());
    EXPECT_EQ(rig.state.WorkGrid, spoilt);
    rig.view.onChange = nullptr;
    return hidden;
  }

  CellDigits spoilt{};
};

TEST_F(RefusedConcealing, After61RefusalsTheRestIsTriedInAscendingOrderEachOnce) {
  Spoil(70);
  ScriptedCells script(CellsFrom(0, 60));
  const std::vector<int> hidden = OrderOfHiding(script);
  EXPECT_TRUE(script.IsOver());
  EXPECT_EQ(script.drawnBeyond, 0);
  EXPECT_EQ(hidden, CellsFrom(70, 80));

  ScriptedCells again(CellsFrom(0, 60));
  LiteralConceal literal(oracle::RegularLayout(), again);
  EXPECT_EQ(literal.ConcealCells2ValidTessel(spoilt, LiteralConceal::Mode::kSingle),
            rig.state.Puzzle);
  EXPECT_TRUE(literal.sequential);
  EXPECT_EQ(literal.calls, 81);
}

TEST_F(RefusedConcealing, TheAscendingScanBeginsWithTheFirstCell) {
  Spoil(0);
  ScriptedCells script(CellsFrom(20, 80));
  const std::vector<int> hidden = OrderOfHiding(script);
  EXPECT_EQ(script.drawnBeyond, 0);
  ASSERT_FALSE(hidden.empty());
  EXPECT_EQ(hidden.front(), 0);
}

TEST_F(RefusedConcealing, RefusedCellsAreNotTriedAgain) {
  Spoil(70);
  std::vector<int> cells;
  for (const int cell : CellsFrom(0, 60)) cells.insert(cells.end(), {cell, 0, cell});
  cells.resize(cells.size() - 2);  // the 61st refusal is the last draw
  ScriptedCells script(cells);
  EXPECT_EQ(OrderOfHiding(script), CellsFrom(70, 80));
  EXPECT_TRUE(script.IsOver());
  EXPECT_EQ(script.drawnBeyond, 0);
}

TEST_F(RefusedConcealing, SixtyRefusalsAreNotEnough) {
  Spoil(60);
  std::vector<int> cells = CellsFrom(0, 60);
  for (int cell = 80; cell > 60; --cell) cells.push_back(cell);
  ScriptedCells script(cells);
  std::vector<int> hidden = OrderOfHiding(script);
  EXPECT_TRUE(script.IsOver());
  hidden.resize(6);
  EXPECT_THAT(hidden, testing::ElementsAre(60, 80, 79, 78, 77, 76));
}

TEST_F(RefusedConcealing, PartnersOfRefusedCellsAreNotTriedAgain) {
  InPairs();
  rig.state.WorkGrid.fill(5);
  spoilt = rig.state.WorkGrid;
  std::vector<int> cells;
  for (const int cell : CellsFrom(0, 40)) cells.insert(cells.end(), {cell, 80 - cell, cell});
  cells.resize(cells.size() - 2);  // the 41st refusal is the last draw: every cell is kept
  ScriptedCells script(cells);
  EXPECT_THAT(OrderOfHiding(script), testing::IsEmpty());
  EXPECT_TRUE(script.IsOver());
  EXPECT_EQ(script.drawnBeyond, 0);
  EXPECT_EQ(rig.state.Puzzle, spoilt);
}

TEST_F(RefusedConcealing, EverySingleCellRefusedIsAnEndToo) {
  rig.state.WorkGrid.fill(5);
  spoilt = rig.state.WorkGrid;
  ScriptedCells script(CellsFrom(20, 80));
  EXPECT_THAT(OrderOfHiding(script), testing::IsEmpty());
  EXPECT_TRUE(script.IsOver());
  EXPECT_EQ(script.drawnBeyond, 0);
  EXPECT_EQ(rig.state.Puzzle, spoilt);
}

}  // namespace
}  // namespace tessel
