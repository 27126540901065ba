#include "tests/shell/solving_test.h"

namespace tessel {
namespace {

using testing::ElementsAre;

class FullBoard : public SolvingTest {};

TEST_F(FullBoard, PlaysTheApplauseAndEndsTheGame) {
  FillAllBut(kEmpty);
  EXPECT_TRUE(BoardIsOpen());
  Left(kEmpty, KnownSolution(kEmpty));
  EXPECT_THAT(TakeSounds(), ElementsAre(2, 0));
  EXPECT_FALSE(BoardIsOpen());
}

// Deliberate: a full board is finished, right or wrong.
TEST_F(FullBoard, IsFinishedEvenWithWrongDigits) {
  FillAllBut(kEmpty);
  Untick();
  Left(kEmpty, KnownSolution(kEmpty) % 9 + 1);
  EXPECT_THAT(TakeSounds(), ElementsAre(2, 0));
  EXPECT_FALSE(BoardIsOpen());
}

TEST_F(FullBoard, IgnoresFurtherClicks) {
  FillAllBut(kEmpty);
  Left(kEmpty, KnownSolution(kEmpty));
  ExpectNothingHappens([&] {
    Left(kEmpty, 2);
    Right(kEmpty, 2);
    Middle(kEmpty);
    program.main.Click(Button::CommandHint);
    program.main.Click(Button::CommandSolution);
  });
}

TEST_F(FullBoard, IsNotThereWhileOneCellIsEmpty) {
  FillAllBut(kEmpty);
  Right(kOtherEmpty, 1);
  Left(kEmpty, KnownSolution(kEmpty));
  EXPECT_THAT(TakeSounds(), ElementsAre(1, 2));
  EXPECT_TRUE(BoardIsOpen());
}

TEST_F(FullBoard, CanBeRestartedAndQuit) {
  FillAllBut(kEmpty);
  Left(kEmpty, KnownSolution(kEmpty));
  program.main.Click(Button::CommandRestart);
  EXPECT_TRUE(BoardIsOpen());
  EXPECT_EQ(Board(kEmpty), 0);
}

TEST_F(FullBoard, TheBoxStillRedrawsAndTheGameStaysOver) {
  FillAllBut(kEmpty);
  Left(kEmpty, KnownSolution(kEmpty));
  Untick();
  program.Tick(CheckBox::CheckPencilmarks);
  EXPECT_FALSE(BoardIsOpen());
  EXPECT_EQ(Display().Cell(kEmpty).text, KnownSolution(kEmpty));
}

}  // namespace
}  // namespace tessel
