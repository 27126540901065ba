// Puzzles that come from elsewhere leave the window as a completed Conceal does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/shell/known_puzzle.h"
#include "tests/shell/snapshot.h"

namespace tessel {
namespace {

constexpr char kQuitSolving[] = "Tessel Sudoku - Solver: Do you really want to quit solving ?";

Puzzle PuzzleOf(const PuzzleRecord& record) {
  return {*Layout::FromCages(record.CageMap), record.Board, record.Solution};
}

// Everything but what tells how the puzzle was come by: the time in the caption, and sounds.
Snapshot Shown(const TestProgram& program) {
  Snapshot snapshot(program);
  snapshot.picture.erase(0, snapshot.picture.find('\n'));
  snapshot.beeps = 0;
  snapshot.sounds = 0;
  snapshot.questions = 0;
  return snapshot;
}

class OpenedPuzzle : public testing::Test {
 protected:
  OpenedPuzzle() { made.MakePuzzle(); }

  Puzzle Made() const { return PuzzleOf(made.State().SavedPuzzle); }
  static void Solve(TestProgram& program) { program.main.Click(Button::CommandSolve); }
  void ExpectLikeMade() {
    EXPECT_EQ(Shown(opened), Shown(made));
    EXPECT_EQ(opened.State().CageCells, made.State().CageCells);
    EXPECT_EQ(opened.Display().Caption(), "Tessel Sudoku");
  }

  TestProgram made{1};
  TestProgram opened{2};
};

TEST_F(OpenedPuzzle, LeavesEverythingAsACompletedConcealDoes) {
  EXPECT_TRUE(opened.main.OpenPuzzle(Made()));
  ExpectLikeMade();
  EXPECT_TRUE(opened.view.questions.empty());
}

TEST_F(OpenedPuzzle, IsNotAppendedToTheFile) {
  opened.main.OpenPuzzle(Made());
  Solve(opened);
  EXPECT_FALSE(std::filesystem::exists(opened.folder.PuzzleFile()));
}

TEST_F(OpenedPuzzle, TakesTheNextSteps) {
  opened.main.OpenPuzzle(Made());
  Solve(opened);
  Solve(made);
  ExpectLikeMade();
  opened.main.Click(Button::CommandSolution);
  EXPECT_EQ(opened.State().PlayBoard.Board, Made().solution);
  opened.main.Click(Button::CommandConceal);
  EXPECT_EQ(opened.State().SavedPuzzle.Solution, Made().solution);
  EXPECT_EQ(opened.State().SavedPuzzle.CageMap, Made().layout.Cages());
}

TEST_F(OpenedPuzzle, MayComeAtAnyStage) {
  opened.Tick(CheckBox::CheckVisualize);
  made.Tick(CheckBox::CheckVisualize);
  opened.main.Click(Button::CommandSaw);
  opened.main.OpenPuzzle(Made());
  ExpectLikeMade();
  opened.main.Click(Button::CommandGo);
  opened.main.OpenPuzzle(Made());
  ExpectLikeMade();
  opened.MakePuzzle();
  opened.main.OpenPuzzle(Made());
  ExpectLikeMade();
}

// A visualised Fill leaves bold marks where it is stopped.
TEST_F(OpenedPuzzle, LeavesNothingOfAStoppedFill) {
  opened.Tick(CheckBox::CheckVisualize);
  opened.main.Click(Button::CommandSaw);
  opened.view.onPump = [this](long pump) {
    if (pump % 50 == 0) opened.main.Click(Button::CommandGo);
  };
  opened.main.Click(Button::CommandGo);
  opened.view.onPump = nullptr;
  opened.Tick(CheckBox::CheckVisualize, false);
  opened.main.OpenPuzzle(Made());
  ExpectLikeMade();
}

class OpenedOverAGame : public OpenedPuzzle {
 protected:
  OpenedOverAGame() {
    opened.MakePuzzle();
    Solve(opened);
  }
};

TEST_F(OpenedOverAGame, AsksAsQuitDoes) {
  EXPECT_TRUE(opened.main.OpenPuzzle(Made()));
  EXPECT_THAT(opened.view.questions, testing::ElementsAre(kQuitSolving));
  EXPECT_FALSE(opened.Display().SolveButtonsVisible());
  EXPECT_EQ(opened.State().SavedPuzzle, made.State().SavedPuzzle);
  Solve(opened);
  Solve(made);
  ExpectLikeMade();
}

TEST_F(OpenedOverAGame, ChangesNothingOnNo) {
  opened.view.answer = false;
  Snapshot before(opened);
  EXPECT_FALSE(opened.main.OpenPuzzle(Made()));
  EXPECT_EQ(opened.view.questions.size(), 1u);
  ++before.questions;
  EXPECT_EQ(Snapshot(opened), before);
}

TEST_F(OpenedOverAGame, AsksNothingWhenTheGameIsOver) {
  opened.main.Click(Button::CommandSolution);
  EXPECT_TRUE(opened.main.OpenPuzzle(Made()));
  EXPECT_TRUE(opened.view.questions.empty());
}

TEST_F(OpenedOverAGame, IsRefusedWhileAQuestionIsOpen) {
  bool changed = true;
  opened.view.onQuestion = [&] { changed = opened.main.OpenPuzzle(Made()); };
  opened.view.answer = false;
  opened.main.Click(Button::CommandQuit);
  EXPECT_FALSE(changed);
  EXPECT_EQ(opened.view.questions.size(), 1u);
}

TEST_F(OpenedPuzzle, IsRefusedWhileACommandRuns) {
  bool changed = false;
  opened.view.onPump = [&](long) { changed = changed || opened.main.OpenPuzzle(Made()); };
  opened.main.Click(Button::CommandSaw);
  EXPECT_FALSE(changed);
}

TEST_F(OpenedPuzzle, IsAtHandWhileItCanBeSolvedOrIsPlayed) {
  EXPECT_EQ(opened.main.PuzzleAtHand(), std::nullopt);
  opened.main.OpenPuzzle(Made());
  EXPECT_EQ(opened.main.PuzzleAtHand(), Made());
  Solve(opened);
  bool inside = false;
  opened.view.onPump = [&](long) { inside = inside || opened.main.PuzzleAtHand().has_value(); };
  opened.main.Click(Button::CommandSaw);
  EXPECT_FALSE(inside);
  EXPECT_EQ(opened.main.PuzzleAtHand(), Made()) << "Restart opens it";
  opened.main.Click(Button::CommandQuit);
  EXPECT_EQ(opened.main.PuzzleAtHand(), std::nullopt);
}

TEST_F(OpenedPuzzle, SeedsDifferAndFollowTheClock) {
  TestProgram again{2};
  const auto first = opened.main.DrawSeed();
  EXPECT_EQ(again.main.DrawSeed(), first);
  EXPECT_NE(opened.main.DrawSeed(), first);
}

}  // namespace
}  // namespace tessel
