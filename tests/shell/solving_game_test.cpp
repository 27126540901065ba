// The moves as values: no window, no sounds.
#include "shell/solving_game.h"

#include <gtest/gtest.h>

#include "core/random_stream.h"
#include "tests/shell/known_puzzle.h"

namespace tessel {
namespace {

constexpr int kGiven = 0;
constexpr int kEmpty = 1;
static_assert(IsKnownGiven(kGiven) && !IsKnownGiven(kEmpty));

class SolvingGameTest : public testing::Test {
 protected:
  static Position WithMode(Position position, MarkMode mode) {
    position.PencilmarkMode = mode;
    return position;
  }

  const SolvingGame game{Layout::Regular(), KnownPuzzle()};
  const Position start = game.Restart({}).position;
  const int right = KnownSolution(kEmpty);
};

TEST_F(SolvingGameTest, RestartOpensThePuzzleWithTheCandidatesThatItsGivensLeave) {
  EXPECT_EQ(start.PlayBoard, KnownPuzzle());
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(start.Candidates[cell], KnownCandidates(cell)) << cell;
  }
}

TEST_F(SolvingGameTest, RestartKeepsHowMarksAreKept) {
  const Position unticked = WithMode(start, MarkMode::kNotUpdated);
  EXPECT_EQ(game.Restart(unticked).position, unticked);
}

TEST_F(SolvingGameTest, APlacedDigitTakenOutLeavesThePeersReduced) {
  const auto placed = game.Place(start, kEmpty, right);
  ASSERT_TRUE(placed);
  EXPECT_EQ(placed->sound, Sound::kEntry);
  EXPECT_EQ(placed->position.PlayBoard.Board[kEmpty], right);
  const auto out = game.TakeOut(placed->position, kEmpty);
  ASSERT_TRUE(out);
  EXPECT_EQ(out->sound, Sound::kPatch);
  Position expected = start;
  expected.CandidatesBeforeEntry[kEmpty] = start.Candidates[kEmpty];
  for (int peer = 0; peer < kCellCount; ++peer) {
    if (!ArePeers(kEmpty, peer)) continue;
    expected.Candidates[peer] = Without(expected.Candidates[peer], BitOf(right));
  }
  EXPECT_EQ(out->position, expected);
}

TEST_F(SolvingGameTest, OnlyADigitWhoseMarkIsShownCanBePlaced) {
  const auto toggled = game.ToggleMark(start, kEmpty, right);
  ASSERT_TRUE(toggled);
  EXPECT_EQ(toggled->sound, Sound::kPatch);
  EXPECT_FALSE(game.Place(toggled->position, kEmpty, right));
  EXPECT_TRUE(game.Place(WithMode(toggled->position, MarkMode::kNotUpdated), kEmpty, right));
  const auto again = game.ToggleMark(toggled->position, kEmpty, right);
  ASSERT_TRUE(again);
  EXPECT_EQ(again->sound, Sound::kMarkAdded);
  EXPECT_EQ(again->position, start);
}

TEST_F(SolvingGameTest, WithoutUpdatedMarksThereIsNothingToToggleOrToReset) {
  const Position unticked = WithMode(start, MarkMode::kNotUpdated);
  EXPECT_FALSE(game.ToggleMark(unticked, kEmpty, right));
  EXPECT_FALSE(game.ResetCell(unticked, kEmpty));
}

TEST_F(SolvingGameTest, AnEntryIsNeitherOverwrittenNorToggled) {
  const Position placed = game.Place(start, kEmpty, right)->position;
  EXPECT_FALSE(game.Place(placed, kEmpty, right));
  EXPECT_FALSE(game.ToggleMark(placed, kEmpty, right));
  EXPECT_FALSE(game.TakeOut(start, kEmpty));
}

TEST_F(SolvingGameTest, GivensRefuseEveryButton) {
  for (const MouseButton button : {MouseButton::kLeft, MouseButton::kRight, MouseButton::kMiddle}) {
    for (int digit = 1; digit <= kSide; ++digit) {
      EXPECT_FALSE(game.Click(start, kGiven, button, digit));
    }
  }
}

TEST_F(SolvingGameTest, TheSolutionFillsTheBoardAndLeavesTheCandidates) {
  const Move move = game.Solution(start);
  EXPECT_EQ(move.sound, Sound::kBlaster);
  EXPECT_TRUE(IsFull(move.position));
  EXPECT_EQ(move.position.PlayBoard.Board, KnownPuzzle().Solution);
  EXPECT_EQ(move.position.Candidates, start.Candidates);
}

// The whole history of a game is a list of positions: each can be gone on from, in any order.
TEST_F(SolvingGameTest, ThePositionsOfAGameAreItsHistory) {
  struct Click {
    int cell;
    MouseButton button;
    int digit;
  };
  RandomStream random(7);
  std::vector<Position> history{start};
  std::vector<Click> clicks;
  for (int made = 0; made < 2000; ++made) {
    const Click click{static_cast<int>(random.Below(kCellCount)),
                      static_cast<MouseButton>(1 << random.Below(3)),
                      1 + static_cast<int>(random.Below(kSide))};
    const auto move = game.Click(history.back(), click.cell, click.button, click.digit);
    if (!move) continue;
    clicks.push_back(click);
    history.push_back(move->position);
  }
  ASSERT_GT(clicks.size(), 500U);
  for (std::size_t i = clicks.size(); i-- > 0;) {
    const Click& click = clicks[i];
    const auto again = game.Click(history[i], click.cell, click.button, click.digit);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->position, history[i + 1]);
  }
}

}  // namespace
}  // namespace tessel
