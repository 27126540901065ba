#include "shell/status_line.h"

#include "tests/shell/solving_test.h"

namespace tessel {
namespace {

class StatusLineTest : public SolvingTest {
 protected:
  StatusLine Line(std::optional<grade::Level> level = std::nullopt) {
    return StatusLineOf(Display(), State(), level);
  }
  std::string Givens() {
    return std::to_string(81 - std::ranges::count(State().SavedPuzzle.Board, 0)) + " givens";
  }
  std::string CellsLeft() { return std::to_string(std::ranges::count(State().PlayBoard.Board, 0)); }
};

TEST(StatusLine, IsEmptyBeforeThereIsAPuzzle) {
  TestProgram program;
  for (const Button command : {Button::CommandSaw, Button::CommandGo}) {
    EXPECT_EQ(StatusLineOf(program.Display(), program.State(), grade::Level::kHard), StatusLine{});
    program.main.Click(command);
  }
  EXPECT_EQ(StatusLineOf(program.Display(), program.State(), grade::Level::kHard), StatusLine{});
}

TEST_F(StatusLineTest, TellsTheSavedPuzzleBeforeItIsOpened) {
  program.main.Click(Button::CommandConceal);
  program.main.Click(Button::CommandQuit);
  program.main.Click(Button::CommandConceal);
  EXPECT_THAT(Line().said, testing::StartsWith("Saved as puzzle 3 in "));
  EXPECT_THAT(Line(grade::Level::kEasy).standing,
              testing::MatchesRegex("[0-9]+ givens, [0-9]+ cells left; Tessel grade: Easy"));
}

TEST_F(StatusLineTest, CountsTheGivensAndTheCellsLeft) {
  const std::string left = CellsLeft();
  EXPECT_EQ(Line(), (StatusLine{"", Givens() + ", " + left + " cells left"}));
  Left(kEmpty, 2);
  EXPECT_NE(CellsLeft(), left);
  EXPECT_EQ(Line().standing, Givens() + ", " + CellsLeft() + " cells left");
  FillAllBut(kOtherEmpty);
  EXPECT_EQ(Line().standing, Givens() + ", 1 cell left");
}

TEST_F(StatusLineTest, TellsTheGradeOnceItIsKnown) {
  EXPECT_THAT(Line(grade::Level::kVeryHard).standing,
              testing::EndsWith("cells left; Tessel grade: Very hard"));
}

TEST_F(StatusLineTest, TellsThatTheBoardIsFullUntilItIsOpenAgain) {
  FillAllBut(-1);
  EXPECT_EQ(Line().said, "The board is full");
  program.main.Click(Button::CommandRestart);
  EXPECT_EQ(Line().said, "");
  program.main.Click(Button::CommandSolution);
  EXPECT_EQ(Line().said, "The board is full");
  program.main.Click(Button::CommandSaw);
  EXPECT_EQ(Line().said, "Your game stays open; Solve opens the new puzzle");
}

TEST_F(StatusLineTest, LeavesTheGivensOutOnceAnotherPuzzleWasSaved) {
  program.clock.nextSeed = 19;
  program.Tick(CheckBox::MakeRegular, false);
  program.MakePuzzle();
  EXPECT_EQ(Line(grade::Level::kEasy).standing, CellsLeft() + " cells left");
}

TEST_F(StatusLineTest, WhatWentWrongComesBeforeAllElse) {
  FillAllBut(-1);
  std::filesystem::remove_all(program.folder.Path());
  program.main.Click(Button::CommandConceal);
  EXPECT_EQ(Line(grade::Level::kEasy), (StatusLine{Display().Notice(), ""}));
  EXPECT_NE(Display().Notice(), "");
}

}  // namespace
}  // namespace tessel
