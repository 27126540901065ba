// Solve, Restart, Solution, Quit and the box "Update Pencilmarks".
#include "core/texts.h"
#include "tests/shell/enabled_buttons.h"
#include "tests/shell/solving_test.h"

namespace tessel {
namespace {

using testing::ElementsAre;

class SolvingButtons : public SolvingTest {
 protected:
  void Restart() { program.main.Click(Button::CommandRestart); }
  void Solution() { program.main.Click(Button::CommandSolution); }
  void Quit() { program.main.Click(Button::CommandQuit); }
  void ExpectUntouchedPuzzle() {
    for (int cell = 0; cell < kCellCount; ++cell) {
      EXPECT_EQ(Candidates(cell), KnownCandidates(cell)) << cell;
      EXPECT_EQ(Shown(cell), KnownCandidates(cell)) << cell;
      EXPECT_EQ(Display().Cell(cell).text, IsKnownGiven(cell) ? KnownSolution(cell) : 0) << cell;
    }
    EXPECT_EQ(State().PlayBoard, KnownPuzzle());
  }
};

TEST_F(SolvingButtons, SolveOpensThePuzzleWithItsCandidates) {
  EXPECT_TRUE(Display().SolveButtonsVisible());
  EXPECT_TRUE(Display().SolveButtonsEnabled());
  EXPECT_EQ(Display().Caption(), texts::kProgram);
  EXPECT_TRUE(BoardIsOpen());
  ExpectUntouchedPuzzle();
}

TEST_F(SolvingButtons, SolvePlaysTheSoundOfRestartAlone) {
  Quit();
  program.main.Click(Button::CommandSolve);
  EXPECT_THAT(TakeSounds(), ElementsAre(1));
}

TEST_F(SolvingButtons, SolveReopensAFinishedBoard) {
  Solution();
  Quit();
  program.main.Click(Button::CommandSolve);
  EXPECT_TRUE(BoardIsOpen());
  ExpectUntouchedPuzzle();
}

TEST_F(SolvingButtons, SolveEnablesHintAndThenSolution) {
  Solution();
  Quit();
  std::vector<Button> enabled;
  program.view.onChange = [&](FormPart part, int index) {
    const auto button = static_cast<Button>(index);
    if (part == FormPart::kButton && Display().Of(button).enabled) enabled.push_back(button);
  };
  program.main.Click(Button::CommandSolve);
  EXPECT_THAT(enabled, ElementsAre(Button::CommandHint, Button::CommandSolution));
}

TEST_F(SolvingButtons, SolveKeepsThePencilmarkMode) {
  Untick();
  Quit();
  program.main.Click(Button::CommandSolve);
  EXPECT_EQ(State().PencilmarkMode, MarkMode::kNotUpdated);
  EXPECT_FALSE(Display().Checked(CheckBox::CheckPencilmarks));
  EXPECT_EQ(Shown(kEmpty), kAllCandidates);
}

TEST_F(SolvingButtons, TheFrameAnswersOnlyWhileItIsShown) {
  Quit();
  ExpectNothingHappens([&] {
    Restart();
    Solution();
    Quit();
    program.main.Click(Button::CommandHint);
    program.main.Toggle(CheckBox::CheckPencilmarks);
  });
}

TEST_F(SolvingButtons, RestartTakesThePlayersDigitsOut) {
  Left(kEmpty, 2);
  Right(kOtherEmpty, 1);
  Middle(40);
  TakeSounds();
  Restart();
  EXPECT_THAT(TakeSounds(), ElementsAre(1));
  ExpectUntouchedPuzzle();
}

TEST_F(SolvingButtons, RestartReopensAFinishedBoard) {
  Solution();
  EXPECT_FALSE(BoardIsOpen());
  Restart();
  EXPECT_TRUE(BoardIsOpen());
  ExpectUntouchedPuzzle();
  Left(kEmpty, 2);
  EXPECT_EQ(Board(kEmpty), 2);
}

TEST_F(SolvingButtons, RestartWithoutUpdatesShowsAllMarksAndKeepsTheMasksRight) {
  Untick();
  Left(kEmpty, 2);
  Restart();
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(Shown(cell), IsKnownGiven(cell) ? 0 : kAllCandidates) << cell;
    EXPECT_EQ(Candidates(cell), KnownCandidates(cell)) << cell;
  }
}

TEST_F(SolvingButtons, RestartPaintsEveryMarkBlack) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int digit = 1; digit <= kSide; ++digit) {
      EXPECT_EQ(Display().Mark(cell, digit).colour, kBlack);
    }
  }
}

TEST_F(SolvingButtons, RestartWritesTheHintTextAndEndsAPendingAssignment) {
  Announce(40);
  Restart();
  ExpectPending(false);
  EXPECT_EQ(Display().TextHint(), "Press [Hint] if you got stuck");
}

TEST_F(SolvingButtons, RestartLeavesRedCaptions) {
  Announce(40);
  Restart();
  EXPECT_EQ(RedCaptions(), "E5");
}

TEST_F(SolvingButtons, SolutionShowsEveryDigitAndEndsTheGame) {
  Left(kEmpty, 2);
  TakeSounds();
  Solution();
  EXPECT_THAT(TakeSounds(), ElementsAre(4)) << "no applause";
  EXPECT_FALSE(BoardIsOpen());
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(Shown(cell), 0);
    EXPECT_EQ(Display().Cell(cell).text, KnownSolution(cell));
    EXPECT_EQ(Board(cell), KnownSolution(cell));
  }
}

TEST_F(SolvingButtons, ClicksAreIgnoredFromSolutionToRestart) {
  Solution();
  ExpectNothingHappens([&] {
    Left(kEmpty, 2);
    Right(kEmpty, 2);
    Middle(kEmpty);
    Solution();
    program.main.Click(Button::CommandHint);
  });
  Restart();
  Right(kEmpty, 2);
  EXPECT_EQ(Candidates(kEmpty), Without(KnownCandidates(kEmpty), BitOf(2)));
}

TEST_F(SolvingButtons, SolutionEndsAPendingAssignmentAndLeavesTextAndRedCaptions) {
  Announce(40);
  const std::string hint = Display().TextHint();
  Solution();
  ExpectPending(false);
  EXPECT_EQ(Display().TextHint(), hint);
  EXPECT_EQ(RedCaptions(), "E5");
}

TEST_F(SolvingButtons, SolutionLeavesTheCandidates) {
  const MaskBoard before = State().Candidates;
  Solution();
  EXPECT_EQ(State().Candidates, before);
}

TEST_F(SolvingButtons, QuitShowsThePuzzleWithMarksThatVanish) {
  Left(kEmpty, 2);
  Quit();
  EXPECT_FALSE(Display().SolveButtonsVisible());
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(Display().Cell(cell).text, IsKnownGiven(cell) ? KnownSolution(cell) : 0);
    EXPECT_EQ(Shown(cell), kAllCandidates);
    for (int digit = 1; digit <= kSide; ++digit) {
      EXPECT_EQ(Display().Mark(cell, digit).colour, Display().Cell(cell).PaintedBackground());
    }
  }
}

TEST_F(SolvingButtons, QuitMakesTheCaptionsBlackButLeavesAPendingAssignment) {
  Announce(40);
  Quit();
  EXPECT_EQ(RedCaptions(), "");
  ExpectPending(true);
}

TEST_F(SolvingButtons, QuitIsSilentAndLeavesThePlayersBoard) {
  Left(kEmpty, 2);
  TakeSounds();
  Quit();
  EXPECT_THAT(TakeSounds(), testing::IsEmpty());
  EXPECT_EQ(Board(kEmpty), 2);
}

TEST_F(SolvingButtons, QuitLeavesTheGenerationButtons) {
  Quit();
  EXPECT_EQ(EnabledButtons(Display()), kPuzzleConcealed);
}

TEST_F(SolvingButtons, UntickingShowsAllMarksAndTickingTheCandidatesAgain) {
  Untick();
  EXPECT_EQ(State().PencilmarkMode, MarkMode::kNotUpdated);
  EXPECT_EQ(Shown(kEmpty), kAllCandidates);
  EXPECT_EQ(Shown(kGiven), 0);
  program.Tick(CheckBox::CheckPencilmarks);
  EXPECT_EQ(State().PencilmarkMode, MarkMode::kAutomatic);
  ExpectUntouchedPuzzle();
  EXPECT_THAT(TakeSounds(), testing::IsEmpty());
}

TEST_F(SolvingButtons, EntriesShowNoMarkInEitherMode) {
  Left(kEmpty, 2);
  EXPECT_EQ(Shown(kEmpty), 0);
  Untick();
  EXPECT_EQ(Shown(kEmpty), 0);
  EXPECT_EQ(Display().Cell(kEmpty).text, 2);
}

TEST_F(SolvingButtons, ThePlayersOwnMarksSurviveTheBox) {
  Right(kEmpty, 2);
  Untick();
  program.Tick(CheckBox::CheckPencilmarks);
  EXPECT_EQ(Shown(kEmpty), Without(KnownCandidates(kEmpty), BitOf(2)));
}

TEST_F(SolvingButtons, TheBoxEndsAPendingAssignment) {
  Announce(40);
  program.Tick(CheckBox::CheckPencilmarks);
  ExpectPending(false);
}

TEST_F(SolvingButtons, ABoxAlreadyInStepWithTheModeDoesNothing) {
  Left(kEmpty, 2);
  Probe().PencilmarkMode = MarkMode::kNotUpdated;  // out of step with the ticked box
  Probe().AssignmentPending = Bool16::kTrue;
  const long changes = program.view.changes;
  program.main.Toggle(CheckBox::CheckPencilmarks);
  EXPECT_EQ(program.view.changes, changes + 1) << "the box itself, no redraw";
  EXPECT_EQ(State().PencilmarkMode, MarkMode::kNotUpdated);
  EXPECT_EQ(State().AssignmentPending, Bool16::kTrue);
  Probe().PencilmarkMode = MarkMode::kAutomatic;
  program.main.Toggle(CheckBox::CheckPencilmarks);
  EXPECT_EQ(program.view.changes, changes + 2);
  EXPECT_EQ(State().AssignmentPending, Bool16::kTrue);
}

}  // namespace
}  // namespace tessel
