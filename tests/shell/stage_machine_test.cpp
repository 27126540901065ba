#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <locale>

#include "core/texts.h"
#include "tests/fakes/test_program.h"
#include "tests/shell/enabled_buttons.h"
#include "tests/shell/snapshot.h"

namespace tessel {
namespace {

class StageMachine : public testing::Test {
 protected:
  StageMachine() { program.Tick(CheckBox::MakeRegular); }

  std::string Enabled() { return EnabledButtons(program.Display()); }
  void Saw() { program.main.Click(Button::CommandSaw); }
  void Fill() { program.main.Click(Button::CommandGo); }
  void Conceal() { program.main.Click(Button::CommandConceal); }
  // The command that runs next is told to stop at its n-th pump.
  void StopAtPump(Button button, long pump) {
    const long target = program.view.pumps + pump;
    program.view.onPump = [this, button, target](long n) {
      if (n == target) program.main.Click(button);
    };
  }

  TestProgram program;
};

TEST_F(StageMachine, EnablesOneCommandMoreAfterEachStage) {
  EXPECT_EQ(Enabled(), kLayoutNeeded);
  Saw();
  EXPECT_EQ(Enabled(), kLayoutMade);
  Fill();
  EXPECT_EQ(Enabled(), kGridFilled);
  Conceal();
  EXPECT_EQ(Enabled(), kPuzzleConcealed);
}

TEST_F(StageMachine, LaterCommandsAreDeadUntilTheirStage) {
  Fill();
  Conceal();
  program.main.Click(Button::CommandSolve);
  EXPECT_EQ(Enabled(), kLayoutNeeded);
  EXPECT_EQ(program.State().WorkGrid, CellDigits{});
  EXPECT_FALSE(program.Display().SolveButtonsVisible());
  Saw();
  Conceal();
  program.main.Click(Button::CommandSolve);
  EXPECT_EQ(Enabled(), kLayoutMade);
  EXPECT_EQ(program.State().Puzzle, CellDigits{});
  EXPECT_FALSE(program.Display().SolveButtonsVisible());
}

TEST_F(StageMachine, SawAfterAPuzzleStartsAgain) {
  program.MakePuzzle();
  Saw();
  EXPECT_EQ(Enabled(), kLayoutMade);
}

TEST_F(StageMachine, FillAfterAPuzzleTakesSolveAway) {
  program.MakePuzzle();
  Fill();
  EXPECT_EQ(Enabled(), kGridFilled);
}

TEST_F(StageMachine, ConcealCanBeRepeatedOnTheSameSolution) {
  program.MakePuzzle();
  const CellDigits solution = program.State().WorkGrid;
  const CellDigits first = program.State().Puzzle;
  Conceal();
  EXPECT_EQ(Enabled(), kPuzzleConcealed);
  EXPECT_EQ(program.State().WorkGrid, solution);
  EXPECT_NE(program.State().Puzzle, first);
}

TEST_F(StageMachine, AStoppedFillLeavesConcealOff) {
  Saw();
  StopAtPump(Button::CommandGo, 20);
  Fill();
  EXPECT_EQ(Enabled(), kLayoutMade);
  EXPECT_EQ(program.Display().Caption(), texts::kProgram);
  EXPECT_EQ(program.State().WorkGrid, CellDigits{});
  EXPECT_FALSE(program.State().StopRequested);
}

TEST_F(StageMachine, AStoppedFillAfterAPuzzleLeavesConcealAndSolveOff) {
  program.MakePuzzle();
  const CellDigits solution = program.State().WorkGrid;
  StopAtPump(Button::CommandGo, 1);
  Fill();
  EXPECT_EQ(Enabled(), kLayoutMade);
  EXPECT_EQ(program.State().WorkGrid, solution);
}

TEST_F(StageMachine, AStoppedFillCanBeStartedAgain) {
  Saw();
  StopAtPump(Button::CommandGo, 1);
  Fill();
  Fill();
  EXPECT_EQ(Enabled(), kGridFilled);
}

TEST_F(StageMachine, AStoppedConcealLeavesSolveOff) {
  Saw();
  Fill();
  const CellDigits solution = program.State().WorkGrid;
  StopAtPump(Button::CommandConceal, 40);
  Conceal();
  EXPECT_EQ(Enabled(), kGridFilled);
  EXPECT_EQ(program.Display().Caption(), texts::kProgram);
  EXPECT_EQ(program.State().WorkGrid, solution);
  EXPECT_EQ(program.State().Puzzle, CellDigits{});
  EXPECT_FALSE(program.State().StopRequested);
  EXPECT_FALSE(std::filesystem::exists(program.folder.PuzzleFile()));
  for (int cell = 0; cell < kCellCount; ++cell) EXPECT_EQ(program.Display().Cell(cell).text, 0);
}

TEST_F(StageMachine, AStoppedConcealAfterAPuzzleTakesSolveAwayAndKeepsThePuzzle) {
  program.MakePuzzle();
  const CellDigits puzzle = program.State().Puzzle;
  StopAtPump(Button::CommandConceal, 1);
  Conceal();
  EXPECT_EQ(Enabled(), kGridFilled);
  EXPECT_EQ(program.State().Puzzle, puzzle);
  EXPECT_EQ(std::filesystem::file_size(program.folder.PuzzleFile()), 243u);
}

TEST_F(StageMachine, SolvingLeavesTheStageAsItIs) {
  program.MakePuzzle();
  program.main.Click(Button::CommandSolve);
  EXPECT_EQ(Enabled(), kPuzzleConcealed);
  program.main.Click(Button::CommandSolution);
  EXPECT_EQ(Enabled(), kPuzzleConcealed);
  program.main.Click(Button::CommandQuit);
  EXPECT_EQ(Enabled(), kPuzzleConcealed);
}

TEST_F(StageMachine, ShowsWhichCommandRuns) {
  std::vector<std::string> seen;
  program.view.onPump = [&](long) {
    if (seen.empty() || seen.back() != Enabled()) seen.push_back(Enabled());
  };
  program.Tick(CheckBox::MakeRegular, false);
  Saw();
  EXPECT_THAT(seen, testing::ElementsAre(kSawing));
  seen.clear();
  program.Tick(CheckBox::MakeRegular);  // soon filled
  Saw();
  Fill();
  Conceal();
  EXPECT_THAT(seen, testing::ElementsAre(kFilling, kConcealing));
}

TEST_F(StageMachine, EveryCommandStartsUnderThePlainCaption) {
  std::vector<std::string> seen;
  program.view.onChange = [&](FormPart part, int) {
    if (part == FormPart::kWindowCaption) seen.push_back(program.Display().Caption());
  };
  program.MakePuzzle();
  program.MakePuzzle();
  EXPECT_THAT(seen, testing::ElementsAre("Tessel Sudoku - Sawed in 1.23 ms", "Tessel Sudoku",
                                         "Tessel Sudoku - Filled in 1.23 ms", "Tessel Sudoku",
                                         "Tessel Sudoku - Concealed in 1.23 ms", "Tessel Sudoku",
                                         "Tessel Sudoku - Sawed in 1.23 ms", "Tessel Sudoku",
                                         "Tessel Sudoku - Filled in 1.23 ms", "Tessel Sudoku",
                                         "Tessel Sudoku - Concealed in 1.23 ms"));
}

TEST_F(StageMachine, SolveShowsThePlainCaption) {
  program.MakePuzzle();
  program.main.Click(Button::CommandSolve);
  EXPECT_EQ(program.Display().Caption(), texts::kProgram);
}

struct DecimalComma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST_F(StageMachine, TimesHaveAPointWhereTheLocaleHasAComma) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
  std::setlocale(LC_ALL, "de_DE.UTF-8");  // the C library's part, where it is installed
  program.clock.counterStep = 1'234'567'890;
  Saw();
  std::setlocale(LC_ALL, "C");
  std::locale::global(before);
  EXPECT_EQ(program.Display().Caption(), "Tessel Sudoku - Sawed in 1234.57 ms");
}

TEST_F(StageMachine, NoTimeIsNegativeWhenTheClockGoesBackwards) {
  program.clock.counterStep = -5'000'000;
  program.MakePuzzle();
  EXPECT_EQ(program.Display().Caption(), "Tessel Sudoku - Concealed in 0.00 ms");
}

TEST_F(StageMachine, AShortTimeHasAZeroBeforeThePoint) {
  program.clock.counterStep = 420'000;
  Saw();
  EXPECT_EQ(program.Display().Caption(), "Tessel Sudoku - Sawed in 0.42 ms");
}

TEST_F(StageMachine, ReleasesTheStopwatchButNotOfAStoppedFill) {
  Saw();
  EXPECT_EQ(program.State().Stopwatch, nullptr);
  StopAtPump(Button::CommandGo, 3);
  Fill();
  EXPECT_NE(program.State().Stopwatch, nullptr);
  Fill();
  EXPECT_EQ(program.State().Stopwatch, nullptr);
}

TEST_F(StageMachine, BeepsForARandomLayoutAndForAPuzzle) {
  Saw();
  EXPECT_EQ(program.view.beeps, 0) << "a regular layout is made silently";
  Fill();
  EXPECT_EQ(program.view.beeps, 0);
  StopAtPump(Button::CommandConceal, 3);
  Conceal();
  EXPECT_EQ(program.view.beeps, 0);
  Conceal();
  EXPECT_EQ(program.view.beeps, 1);
  program.Tick(CheckBox::MakeRegular, false);
  Saw();
  EXPECT_EQ(program.view.beeps, 2);
}

TEST_F(StageMachine, CommandsPlayNoSound) {
  program.MakePuzzle();
  EXPECT_TRUE(program.player.played.empty());
}

TEST_F(StageMachine, SawClearsTheBoard) {
  program.MakePuzzle();
  Saw();
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(program.Display().Cell(cell).text, 0);
    EXPECT_EQ(program.Display().Mark(cell, 5).colour, kBlack);
    EXPECT_EQ(program.Display().Cell(cell).PaintedBackground(),
              CageColourOf(program.State(), cell));
  }
}

TEST_F(StageMachine, TheSpareButtonSetsItsFlagAndNothingElse) {
  program.MakePuzzle();
  const Snapshot before(program);
  program.main.Click(Button::Command1);
  EXPECT_EQ(Snapshot(program), before);
  EXPECT_TRUE(program.State().Command1Pressed);
}

TEST_F(StageMachine, TicksOfTheGenerationBoxesChangeNothingElse) {
  Saw();
  for (const CheckBox box : {CheckBox::Rotational, CheckBox::MakeRegular,
                             CheckBox::ConcealRotational, CheckBox::CheckVisualize}) {
    const Snapshot before(program);
    const bool checked = program.Display().Checked(box);
    program.main.Toggle(box);
    EXPECT_NE(program.Display().Checked(box), checked);
    program.main.Toggle(box);
    EXPECT_EQ(Snapshot(program), before);
  }
}

TEST_F(StageMachine, PuzzlesInPairsAreSymmetric) {
  program.Tick(CheckBox::ConcealRotational);
  program.MakePuzzle();
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(program.State().Puzzle[cell] == 0, program.State().Puzzle[HalfTurnOf(cell)] == 0);
  }
}

}  // namespace
}  // namespace tessel
