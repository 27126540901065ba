// What Conceal does with the puzzle file, and what the window tells of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/fake_system_calls.h"
#include "tests/fakes/test_program.h"
#include "tests/shell/enabled_buttons.h"
#include "tests/shell/puzzle_file_test.h"

namespace tessel {
namespace {

class SavedPuzzle : public testing::Test {
 protected:
  SavedPuzzle() { program.Tick(CheckBox::MakeRegular); }

  const std::string& Notice() const { return program.Display().Notice(); }
  void Conceal() { program.main.Click(Button::CommandConceal); }
  std::string Path() const { return program.folder.PuzzleFile().string(); }
  // A puzzle is made while the disk is full.
  void FailToSave() {
    system.Fail(SystemCall::kPwrite, ENOSPC);
    program.MakePuzzle();
    ASSERT_NE(Notice(), "");
  }

  FakeSystemCalls system;
  TestProgram program{1, system};
};

TEST_F(SavedPuzzle, IsOneRecordOfPuzzleSolutionAndCages) {
  program.MakePuzzle();
  const auto records = RecordsOf(Path());
  ASSERT_EQ(records.size(), 1u);
  EXPECT_EQ(records[0], program.State().SavedPuzzle);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(records[0].Board[cell], program.State().Puzzle[cell]);
    EXPECT_EQ(records[0].Solution[cell], program.State().WorkGrid[cell]);
    EXPECT_EQ(records[0].CageMap[cell], program.State().CageOfCell[cell]);
    EXPECT_THAT(records[0].Solution[cell], testing::AllOf(testing::Ge(1), testing::Le(9)));
    EXPECT_THAT(records[0].Board[cell], testing::AnyOf(0, records[0].Solution[cell]));
  }
}

TEST_F(SavedPuzzle, IsAppendedAtEveryConceal) {
  program.MakePuzzle();
  Conceal();
  program.MakePuzzle();
  const auto records = RecordsOf(Path());
  ASSERT_EQ(records.size(), 3u);
  EXPECT_EQ(records[0].Solution, records[1].Solution);
  EXPECT_NE(records[0].Board, records[1].Board);
  EXPECT_EQ(records[2], program.State().SavedPuzzle);
}

TEST_F(SavedPuzzle, IsNotWrittenBeforeConcealNorBySolving) {
  program.main.Click(Button::CommandSaw);
  program.main.Click(Button::CommandGo);
  EXPECT_TRUE(system.calls.empty());
  Conceal();
  const std::string saved = ReadFile(Path());
  program.main.Click(Button::CommandSolve);
  program.main.Click(Button::CommandSolution);
  program.main.Click(Button::CommandRestart);
  program.main.Click(Button::CommandQuit);
  EXPECT_EQ(ReadFile(Path()), saved);
  EXPECT_EQ(saved.size(), sizeof(PuzzleRecord));
}

TEST_F(SavedPuzzle, GoesToTheFolderOfTheProgramWhateverTheWorkingFolder) {
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path("/");
  program.MakePuzzle();
  std::filesystem::current_path(before);
  EXPECT_EQ(RecordsOf(Path()).size(), 1u);
}

TEST_F(SavedPuzzle, IsSolvedAllTheSameWhenItCannotBeSaved) {
  FailToSave();
  EXPECT_EQ(program.Display().Caption(), "Tessel Sudoku - Concealed in 1.23 ms");
  EXPECT_EQ(EnabledButtons(program.Display()), kPuzzleConcealed);
  EXPECT_EQ(program.view.beeps, 1);
  EXPECT_TRUE(program.view.questions.empty()) << "no box appears";
  program.main.Click(Button::CommandSolve);
  EXPECT_EQ(program.State().PlayBoard, program.State().SavedPuzzle);
  EXPECT_NE(program.State().PlayBoard, PuzzleRecord{});
}

TEST_F(SavedPuzzle, TheFootOfTheWindowTellsWhereAndWhyItCouldNotBeSaved) {
  FailToSave();
  EXPECT_EQ(Notice(), "The puzzle could not be saved to " + Path() + ": No space left on device");
}

TEST_F(SavedPuzzle, TheNoticeGivesTheSystemsWords) {
  std::filesystem::create_directory(Path());
  program.MakePuzzle();
  EXPECT_EQ(Notice(), "The puzzle could not be saved to " + Path() + ": Is a directory");
}

TEST_F(SavedPuzzle, NoNoticeAppearsWhenAllIsWell) {
  program.MakePuzzle();
  EXPECT_EQ(Notice(), "");
}

TEST_F(SavedPuzzle, TheFootOfTheWindowTellsItsNumberAndWhereItIs) {
  program.MakePuzzle();
  EXPECT_EQ(program.Display().News(), "Saved as puzzle 1 in " + Path());
  Conceal();
  EXPECT_EQ(program.Display().News(), "Saved as puzzle 2 in " + Path());
  program.main.Click(Button::CommandGo);
  EXPECT_EQ(program.Display().News(), "");
  FailToSave();
  EXPECT_EQ(program.Display().News(), "");
}

TEST_F(SavedPuzzle, TheNoticeIsGoneAtTheNextCommand) {
  for (const Button command :
       {Button::CommandSaw, Button::CommandGo, Button::CommandConceal, Button::CommandSolve}) {
    FailToSave();
    bool goneInside = true;
    program.view.onPump = [&](long) { goneInside = goneInside && Notice().empty(); };
    program.main.Click(command);
    program.view.onPump = nullptr;
    EXPECT_EQ(Notice(), "") << static_cast<int>(command);
    EXPECT_TRUE(goneInside);
  }
}

TEST_F(SavedPuzzle, TheNoticeStaysWhenNoCommandRuns) {
  FailToSave();
  program.view.answer = false;
  program.main.Click(Button::CommandExit);
  program.main.Toggle(CheckBox::Rotational);
  program.main.Form_QueryUnload();
  EXPECT_NE(Notice(), "");
}

TEST_F(SavedPuzzle, ALaterSaveWorksAgain) {
  FailToSave();
  Conceal();
  EXPECT_EQ(Notice(), "");
  EXPECT_EQ(RecordsOf(Path()).size(), 1u);
}

TEST_F(SavedPuzzle, APipeInItsPlaceStopsNothing) {
  ASSERT_EQ(mkfifo(Path().c_str(), 0600), 0);
  program.MakePuzzle();
  EXPECT_EQ(EnabledButtons(program.Display()), kPuzzleConcealed);
  EXPECT_THAT(Notice(), testing::EndsWith("Not a regular file"));
}

TEST_F(SavedPuzzle, TheFolderMayVanishWhileTheProgramRuns) {
  std::filesystem::remove_all(program.folder.Path());
  program.MakePuzzle();
  EXPECT_EQ(EnabledButtons(program.Display()), kPuzzleConcealed);
  EXPECT_THAT(Notice(), testing::EndsWith("No such file or directory"));
}

}  // namespace
}  // namespace tessel
