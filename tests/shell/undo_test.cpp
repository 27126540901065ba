// Undo and redo in a game.
#include "core/texts.h"
#include "tests/fakes/no_disk.h"
#include "tests/shell/solving_test.h"

namespace tessel {
namespace {

class Undo : public SolvingTest {
 protected:
  using SolvingTest::SolvingTest;

  Position Now() { return State(); }
  void Back() { program.main.Undo(); }
  void Forth() { program.main.Redo(); }
  bool CanUndo() { return program.main.CanUndo(); }
  bool CanRedo() { return program.main.CanRedo(); }
  void Press(Button button) { program.main.Click(button); }

  // The move is one step: back leads to where it began, forth to where it led, without a sound.
  template <typename Act>
  void ExpectOneStep(Act act) {
    const std::string pictureBefore = PictureOf(Display());
    const Position before = Now();
    act();
    const Position after = Now();
    const std::string pictureAfter = PictureOf(Display());
    ASSERT_NE(before, after);
    TakeSounds();
    Back();
    EXPECT_EQ(Now(), before);
    EXPECT_EQ(PictureOf(Display()), pictureBefore);
    Forth();
    EXPECT_EQ(Now(), after);
    EXPECT_EQ(PictureOf(Display()), pictureAfter);
    EXPECT_TRUE(TakeSounds().empty());
  }
};

TEST_F(Undo, OpenedPuzzleHasNoSteps) {
  EXPECT_FALSE(CanUndo());
  EXPECT_FALSE(CanRedo());
  ExpectNothingHappens([this] { Back(), Forth(); });
}

TEST_F(Undo, EveryKindOfClickIsAStep) {
  ExpectOneStep([this] { Left(kEmpty, KnownSolution(kEmpty)); });
  ExpectOneStep([this] { Right(kEmpty, 1); });
  ExpectOneStep([this] { Right(kOtherEmpty, KnownSolution(kOtherEmpty)); });
  ExpectOneStep([this] { Middle(kOtherEmpty); });
}

TEST_F(Undo, RefusedClickIsNoStep) {
  Left(kGiven, 1);
  Right(kGiven, 1);
  EXPECT_FALSE(CanUndo());
}

TEST_F(Undo, RestartIsAStep) {
  Left(kEmpty, KnownSolution(kEmpty));
  ExpectOneStep([this] { Press(Button::CommandRestart); });
  EXPECT_TRUE(CanUndo());
}

TEST_F(Undo, SecondSolveOfThePuzzleIsAStepLikeRestart) {
  Left(kEmpty, KnownSolution(kEmpty));
  ExpectOneStep([this] { Press(Button::CommandSolve); });
}

TEST_F(Undo, SolutionIsAStepThatOpensTheBoardAgain) {
  Left(kEmpty, KnownSolution(kEmpty));
  Press(Button::CommandSolution);
  EXPECT_FALSE(BoardIsOpen());
  Back();
  EXPECT_TRUE(BoardIsOpen());
  EXPECT_EQ(Board(kOtherEmpty), 0);
  EXPECT_EQ(Board(kEmpty), KnownSolution(kEmpty));
  Forth();
  EXPECT_FALSE(BoardIsOpen());
}

TEST_F(Undo, EndOfTheGameIsTakenBack) {
  FillAllBut(kEmpty);
  Left(kEmpty, KnownSolution(kEmpty));
  EXPECT_FALSE(BoardIsOpen());
  TakeSounds();
  Back();
  EXPECT_TRUE(BoardIsOpen());
  EXPECT_EQ(Board(kEmpty), 0);
  Forth();
  EXPECT_FALSE(BoardIsOpen());
  EXPECT_TRUE(TakeSounds().empty()) << "no applause";
}

TEST_F(Undo, BoxOfTheMarksIsAStepAndFollows) {
  Left(kEmpty, KnownSolution(kEmpty));
  ExpectOneStep([this] { Untick(); });
  Left(kOtherEmpty, 9);
  Back();
  EXPECT_FALSE(Display().Checked(CheckBox::CheckPencilmarks));
  Back();
  EXPECT_TRUE(Display().Checked(CheckBox::CheckPencilmarks));
  EXPECT_EQ(State().PencilmarkMode, MarkMode::kAutomatic);
}

TEST_F(Undo, HintIsNoStepAndAnAnnouncedOneIsOver) {
  Left(kEmpty, KnownSolution(kEmpty));
  Announce(kOtherEmpty);
  Back();
  ExpectPending(false);
  EXPECT_TRUE(Display().Checked(CheckBox::CheckPencilmarks)) << "the box was the step";
}

TEST_F(Undo, QuitEndsTheHistory) {
  Left(kEmpty, KnownSolution(kEmpty));
  Press(Button::CommandQuit);
  EXPECT_FALSE(CanUndo());
  Press(Button::CommandSolve);
  EXPECT_FALSE(CanUndo());
  EXPECT_FALSE(CanRedo());
}

TEST_F(Undo, SawEndsTheHistory) {
  Left(kEmpty, KnownSolution(kEmpty));
  Press(Button::CommandSaw);
  EXPECT_FALSE(CanUndo());
}

TEST_F(Undo, FillLeavesTheGameToComeBackTo) {
  Left(kEmpty, KnownSolution(kEmpty));
  const Position played = Now();
  Press(Button::CommandGo);
  Back();
  Forth();
  EXPECT_EQ(Now(), played);
  EXPECT_EQ(Display().Cell(kOtherEmpty).text, 0);
  EXPECT_EQ(Display().Mark(kOtherEmpty, 1).colour, kBlack);
}

TEST_F(Undo, AnotherPuzzleEndsTheHistory) {
  Left(kEmpty, KnownSolution(kEmpty));
  Press(Button::CommandConceal);
  EXPECT_FALSE(CanUndo());
  Press(Button::CommandRestart);
  EXPECT_FALSE(CanUndo()) << "the step before it was of another puzzle";
}

TEST_F(Undo, NothingHappensWhileACommandRunsOrAQuestionIsOpen) {
  Left(kEmpty, KnownSolution(kEmpty));
  bool could = false;
  program.view.answer = false;
  program.view.onQuestion = [&] { could = could || CanUndo(); };
  Press(Button::CommandQuit);
  EXPECT_EQ(program.view.questions.size(), 1U);
  program.view.onPump = [&](long) { could = could || CanUndo(); };
  Press(Button::CommandGo);
  EXPECT_FALSE(could);
  EXPECT_TRUE(CanUndo());
}

class UndoWithoutDisk : public Undo {
 protected:
  UndoWithoutDisk() : Undo(disk_) {}

 private:
  inline static NoDisk disk_;
};

// 100,000 events of a player who clicks everywhere.
TEST_F(UndoWithoutDisk, LongSessionIsUndoneToItsFirstPositionAndRedoneToItsLast) {
  SeededRandom random(4711);
  const auto draw = [&random](int n) { return DrawIndex(random, n); };
  const Position first = Now();
  for (int event = 0; event < 100'000; ++event) {
    const int kind = draw(2000);
    if (kind == 0) Press(Button::CommandRestart);
    if (kind == 1) Press(Button::CommandSolution);
    if (kind == 2 && !BoardIsOpen()) Press(Button::CommandRestart);
    if (kind > 2 && kind < 30) Press(Button::CommandHint);
    if (kind >= 30 && kind < 40) program.main.Toggle(CheckBox::CheckPencilmarks);
    if (kind >= 40 && kind < 60) Back();
    if (kind >= 60 && kind < 70) Forth();
    if (kind < 70) continue;
    program.ClickMark(draw(kCellCount), 1 + draw(kSide), static_cast<MouseButton>(1 << draw(3)));
  }
  while (CanRedo()) Forth();
  const Position last = Now();
  const std::string lastPicture = PictureOf(Display());
  long steps = 0;
  for (; CanUndo(); ++steps) Back();
  EXPECT_GT(steps, 10'000);
  EXPECT_EQ(Now(), first);
  EXPECT_EQ(Display().Checked(CheckBox::CheckPencilmarks), true);
  for (int cell = 0; cell < kCellCount; ++cell) EXPECT_EQ(Shown(cell), KnownCandidates(cell));
  while (CanRedo()) Forth();
  EXPECT_EQ(Now(), last);
  EXPECT_EQ(PictureOf(Display()), lastPicture);
}

}  // namespace
}  // namespace tessel
