#include "tests/shell/solving_test.h"

namespace tessel {
namespace {

using testing::ElementsAre;

class CellClick : public SolvingTest {};

TEST_F(CellClick, LeftPlacesTheDigitWhoseMarkIsClicked) {
  Left(kEmpty, 2);
  EXPECT_EQ(Board(kEmpty), 2);
  EXPECT_EQ(Display().Cell(kEmpty).text, 2);
  EXPECT_EQ(Shown(kEmpty), 0);
  EXPECT_THAT(TakeSounds(), ElementsAre(2));
}

TEST_F(CellClick, LeftKeepsTheCellsCandidatesAndClearsThem) {
  const Mask before = Candidates(kEmpty);
  Left(kEmpty, 2);
  EXPECT_EQ(State().CandidatesBeforeEntry[kEmpty], before);
  EXPECT_EQ(Candidates(kEmpty), 0);
}

TEST_F(CellClick, LeftTakesTheDigitFromRowColumnAndCageAlone) {
  Probe().Candidates.fill(kAllCandidates);
  Untick();  // no mark is hidden, so the digit can be placed
  Left(40, 7);
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (cell == 40) continue;
    EXPECT_EQ(Holds(Candidates(cell), 7), !ArePeers(cell, 40)) << cell;
    EXPECT_EQ(Without(Candidates(cell), BitOf(7)), Without(kAllCandidates, BitOf(7))) << cell;
  }
}

TEST_F(CellClick, LeftOnAHiddenMarkDoesNothing) {
  ASSERT_FALSE(Holds(Shown(kEmpty), 1)) << "excluded by the given beside it";
  ExpectNothingHappens([&] { Left(kEmpty, 1); });
}

TEST_F(CellClick, LeftOnACellWithADigitDoesNothing) {
  Left(kEmpty, 2);
  TakeSounds();
  ExpectNothingHappens([&] {
    for (int digit = 1; digit <= kSide; ++digit) Left(kEmpty, digit);
  });
}

TEST_F(CellClick, LeftLeavesADigitEvenWhereAMarkIsShown) {
  Probe().PlayBoard.Board[kEmpty] = 5;  // not yet drawn
  ASSERT_TRUE(Holds(Shown(kEmpty), 2));
  ExpectNothingHappens([&] { Left(kEmpty, 2); });
}

// The left click asks whether the mark is shown, not whether the digit is a candidate.
TEST_F(CellClick, LeftPlacesAnyDigitWhileMarksAreNotUpdated) {
  Untick();
  ASSERT_FALSE(Holds(Candidates(kEmpty), 1));
  Left(kEmpty, 1);
  EXPECT_EQ(Board(kEmpty), 1);
  EXPECT_THAT(TakeSounds(), ElementsAre(2));
}

TEST_F(CellClick, AGivenIsNeverTouched) {
  ExpectNothingHappens([&] {
    for (int cell = 0; cell < kCellCount; ++cell) {
      if (!IsKnownGiven(cell)) continue;
      Left(cell, 9);
      Right(cell, 9);
      Middle(cell);
    }
  });
  Untick();
  ExpectNothingHappens([&] {
    Left(kGiven, 9);
    Right(kGiven, 9);
    Middle(kGiven);
  });
}

TEST_F(CellClick, RightTakesTheDigitOutAndGivesTheCellItsMarksBack) {
  const Mask before = Candidates(kEmpty);
  Left(kEmpty, 2);
  TakeSounds();
  Right(kEmpty, 9);
  EXPECT_EQ(Board(kEmpty), 0);
  EXPECT_EQ(Display().Cell(kEmpty).text, 0);
  EXPECT_EQ(Candidates(kEmpty), before);
  EXPECT_EQ(Shown(kEmpty), before);
  EXPECT_THAT(TakeSounds(), ElementsAre(1));
}

TEST_F(CellClick, RightDoesNotGiveTheNeighboursTheirCandidatesBack) {
  ASSERT_TRUE(Holds(Candidates(kOtherEmpty), 2));
  Left(kEmpty, 2);
  Right(kEmpty, 2);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_FALSE(ArePeers(cell, kEmpty) && Holds(Candidates(cell), 2)) << cell;
  }
}

TEST_F(CellClick, RightOnAnEmptyCellTakesACandidateAway) {
  const Mask before = Candidates(kEmpty);
  ASSERT_TRUE(Holds(before, 2));
  Right(kEmpty, 2);
  EXPECT_EQ(Candidates(kEmpty), Without(before, BitOf(2)));
  EXPECT_EQ(Shown(kEmpty), Candidates(kEmpty));
  EXPECT_THAT(TakeSounds(), ElementsAre(1));
}

TEST_F(CellClick, RightOnAnEmptyCellAddsACandidateEvenOneThatANeighbourHolds) {
  const Mask before = Candidates(kEmpty);
  ASSERT_FALSE(Holds(before, 1));
  Right(kEmpty, 1);
  EXPECT_EQ(Candidates(kEmpty), before | BitOf(1));
  EXPECT_EQ(Shown(kEmpty), Candidates(kEmpty));
  EXPECT_THAT(TakeSounds(), ElementsAre(6));
}

TEST_F(CellClick, RightTogglesBackAndForth) {
  const MaskBoard before = State().Candidates;
  for (int digit = 1; digit <= kSide; ++digit) {
    Right(kEmpty, digit);
    Right(kEmpty, digit);
  }
  EXPECT_EQ(State().Candidates, before);
}

TEST_F(CellClick, RightWithoutUpdatesTakesADigitOut) {
  const Mask before = Candidates(kEmpty);
  Untick();
  Left(kEmpty, 2);
  TakeSounds();
  Right(kEmpty, 9);
  EXPECT_EQ(Board(kEmpty), 0);
  EXPECT_EQ(Candidates(kEmpty), before);
  EXPECT_EQ(Shown(kEmpty), kAllCandidates);
  EXPECT_THAT(TakeSounds(), ElementsAre(1));
}

TEST_F(CellClick, RightWithoutUpdatesOnAnEmptyCellDoesNothing) {
  Untick();
  ExpectNothingHappens([&] {
    for (int digit = 1; digit <= kSide; ++digit) Right(kEmpty, digit);
  });
}

TEST_F(CellClick, MiddleResetsACellWithADigit) {
  Left(kEmpty, 2);
  TakeSounds();
  Middle(kEmpty);
  EXPECT_EQ(Board(kEmpty), 0);
  EXPECT_EQ(Shown(kEmpty), kAllCandidates);
  EXPECT_THAT(TakeSounds(), ElementsAre(3));
}

TEST_F(CellClick, MiddleGivesAllNineCandidatesEvenThoseThatANeighbourHolds) {
  ASSERT_FALSE(Holds(Candidates(kEmpty), 1));
  Middle(kEmpty);
  EXPECT_EQ(Candidates(kEmpty), kAllCandidates);
  EXPECT_EQ(Shown(kEmpty), kAllCandidates);
}

TEST_F(CellClick, MiddleWithoutUpdatesDoesNothing) {
  Untick();
  Left(kEmpty, 2);
  ExpectNothingHappens([&] {
    Middle(kEmpty);
    Middle(kOtherEmpty);
  });
}

TEST_F(CellClick, TheShiftStateIsIgnored) {
  program.main.Grid_MouseUp(kEmpty, MouseButton::kLeft, 7, 125 + 60, 60);
  EXPECT_EQ(Board(kEmpty), 2);
}

TEST_F(CellClick, ACellOutsideTheBoardDoesNothing) {
  ExpectNothingHappens([&] {
    for (const int cell : {-1, 81, 100000, -100000}) {
      Left(cell, 1);
      Right(cell, 1);
      Middle(cell);
    }
  });
}

TEST_F(CellClick, WithoutTheFrameDoesNothing) {
  program.main.Click(Button::CommandQuit);
  ExpectNothingHappens([&] {
    Left(kEmpty, 2);
    Right(kEmpty, 2);
    Middle(kEmpty);
  });
}

TEST_F(CellClick, EndsAPendingAssignment) {
  Announce(40);
  Left(kEmpty, 2);
  ExpectPending(false);
}

TEST_F(CellClick, ThatLeavesDoesNotEvenEndAPendingAssignment) {
  Announce(40);
  ExpectNothingHappens([&] {
    Left(kGiven, 1);
    Right(kEmpty, 1);  // an empty cell, no updates
    Middle(kEmpty);    // no updates
    program.main.Grid_MouseUp(kEmpty, MouseButton::kLeft, 0, -1, -1);
  });
  ExpectPending(true);
}

TEST_F(CellClick, LeavesRedCaptionsAndTheHintTextAsTheyAre) {
  Announce(40);
  const std::string hint = Display().TextHint();
  Left(kEmpty, 2);
  EXPECT_EQ(RedCaptions(), "E5");
  EXPECT_EQ(Display().TextHint(), hint);
}

TEST_F(CellClick, MarksShowWhatTheMasksHoldAfterEveryClick) {
  Left(kEmpty, 2);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(Shown(cell), Board(cell) != 0 ? 0 : Candidates(cell)) << cell;
    EXPECT_EQ(Display().Cell(cell).text, Board(cell)) << cell;
  }
}

TEST_F(CellClick, ACellWithoutCandidatesShowsNoMarkAndTakesNoDigit) {
  for (int digit = 1; digit <= kSide; ++digit) {
    if (Holds(Candidates(kEmpty), digit)) Right(kEmpty, digit);
  }
  EXPECT_EQ(Shown(kEmpty), 0);
  ExpectNothingHappens([&] {
    for (int digit = 1; digit <= kSide; ++digit) Left(kEmpty, digit);
  });
}

}  // namespace
}  // namespace tessel
