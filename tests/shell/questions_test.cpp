#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/shell/disturbance.h"
#include "tests/shell/snapshot.h"

namespace tessel {
namespace {

constexpr char kQuitProgram[] = "Tessel Sudoku: Do you really want to quit this program?";
constexpr char kQuitSolving[] = "Tessel Sudoku - Solver: Do you really want to quit solving ?";

class Questions : public testing::Test {
 protected:
  Questions() {
    program.Tick(CheckBox::MakeRegular);
    program.MakePuzzle();
    program.main.Click(Button::CommandSolve);
    program.view.questions.clear();
  }

  // What differs but for the question asked.
  void ExpectUnchanged(const Snapshot& before) {
    Snapshot after(program);
    EXPECT_EQ(after.questions, before.questions + 1);
    after.questions = before.questions;
    EXPECT_EQ(after, before);
  }

  TestProgram program;
};

TEST_F(Questions, ExitAsksAndEndsTheProgramOnYes) {
  program.view.answer = true;
  program.main.Click(Button::CommandExit);
  EXPECT_THAT(program.view.questions, testing::ElementsAre(kQuitProgram));
  EXPECT_EQ(program.view.ends, 1);
}

TEST_F(Questions, ExitDoesNothingOnNo) {
  program.view.answer = false;
  const Snapshot before(program);
  program.main.Click(Button::CommandExit);
  ExpectUnchanged(before);
  EXPECT_EQ(program.view.ends, 0);
}

TEST_F(Questions, ClosingAsksTheSameQuestion) {
  program.view.answer = true;
  EXPECT_TRUE(program.main.Form_QueryUnload());
  EXPECT_THAT(program.view.questions, testing::ElementsAre(kQuitProgram));
  EXPECT_EQ(program.view.ends, 0) << "the window closes by itself";
}

TEST_F(Questions, ClosingIsCancelledOnNo) {
  program.view.answer = false;
  const Snapshot before(program);
  EXPECT_FALSE(program.main.Form_QueryUnload());
  ExpectUnchanged(before);
}

TEST_F(Questions, ExitAndCloseAskInTheFirstStageToo) {
  TestProgram fresh;
  fresh.main.Click(Button::CommandExit);
  EXPECT_TRUE(fresh.main.Form_QueryUnload());
  EXPECT_THAT(fresh.view.questions, testing::ElementsAre(kQuitProgram, kQuitProgram));
}

TEST_F(Questions, QuitAsksUnderTheSolversTitle) {
  program.main.Click(Button::CommandQuit);
  EXPECT_THAT(program.view.questions, testing::ElementsAre(kQuitSolving));
  EXPECT_FALSE(program.Display().SolveButtonsVisible());
}

TEST_F(Questions, QuitDoesNothingOnNo) {
  program.view.answer = false;
  const Snapshot before(program);
  program.main.Click(Button::CommandQuit);
  ExpectUnchanged(before);
}

TEST_F(Questions, NoOtherEventGetsThroughAnOpenQuestion) {
  program.view.answer = false;
  program.view.onQuestion = [this] { DisturbQuestion(program); };
  const Snapshot first(program);
  program.main.Click(Button::CommandExit);
  ExpectUnchanged(first);
  const Snapshot second(program);
  program.main.Form_QueryUnload();
  ExpectUnchanged(second);
  const Snapshot third(program);
  program.main.Click(Button::CommandQuit);
  ExpectUnchanged(third);
}

TEST_F(Questions, ClosingIsRefusedWhileAQuestionIsOpen) {
  bool closed = true;
  program.view.onQuestion = [&] { closed = program.main.Form_QueryUnload(); };
  program.main.Click(Button::CommandQuit);
  EXPECT_FALSE(closed);
  EXPECT_EQ(program.view.questions.size(), 1u);
}

TEST_F(Questions, EventsCountAgainOnceItIsAnswered) {
  program.view.answer = false;
  program.main.Click(Button::CommandExit);
  program.main.Click(Button::CommandSolution);
  EXPECT_TRUE(program.State().Finished);
}

}  // namespace
}  // namespace tessel
