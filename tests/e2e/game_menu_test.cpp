// The Game menu in the real window, by mouse and by keys, and the game that the next start
// continues.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "core/cell.h"
#include "core/names.h"
#include "tests/e2e/menu_by_hand.h"

namespace tessel {
namespace {

using Games = std::vector<ExpectedGame>;

class GameMenuByHand : public MenuByHand {
 protected:
  GameMenuByHand() { Starts(); }

  // Plays a move of each kind; every position from the first on.
  Games Plays();
  std::vector<Way> StepsBack();
  std::vector<Way> StepsForth();
  bool SeesHintAt(Mark wrong);
  std::filesystem::path GameFile() const { return folder_.Path() / "Tessel_Sudoku.game"; }
};

Games GameMenuByHand::Plays() {
  Games games{PlaysExample()};
  ExpectedGame game = games.front();
  Places(game, game.FindMark(true, true));
  games.push_back(game);
  const Mark mark = game.FindMark(true, false);
  user_->ClickMark(mark.cell, mark.digit, MouseKey::kRight);
  game.RightClick(mark.cell, mark.digit);
  games.push_back(game);
  Places(game, game.FindMark(true, false));
  games.push_back(game);
  EXPECT_TRUE(SeesGame(game));
  return games;
}

// There is no room for the buttons in a small window.
std::vector<MenuByHand::Way> GameMenuByHand::StepsBack() {
  std::vector<Way> ways = WaysTo(Entry::kUndo);
  if (!IsSmall()) ways.push_back({"the button", [this] { user_->Press("Undo"); }});
  return ways;
}

std::vector<MenuByHand::Way> GameMenuByHand::StepsForth() {
  std::vector<Way> ways = WaysTo(Entry::kRedo);
  if (!IsSmall()) ways.push_back({"the button", [this] { user_->Press("Redo"); }});
  return ways;
}

TEST_P(GameMenuByHand, StepsBackAndForth) {
  const Games games = Plays();
  std::vector<Way> forth = StepsForth();
  for (const Way& back : StepsBack()) {
    SCOPED_TRACE(back.name);
    for (std::size_t at = games.size() - 1; at-- > 0;) {
      back.act();
      EXPECT_TRUE(SeesGame(games[at]));
    }
    PressKeys("ctrl+z");  // it can go no further
    for (std::size_t at = 1; at < games.size(); ++at) {
      SCOPED_TRACE(forth.front().name);
      forth.front().act();
      EXPECT_TRUE(SeesGame(games[at]));
      std::rotate(forth.begin(), forth.begin() + 1, forth.end());
    }
  }
}

bool GameMenuByHand::SeesHintAt(Mark wrong) {
  return user_->SeesText("TextHint", "Incorrect number " + std::to_string(wrong.digit) +
                                         " at cell " + CellName(wrong.cell) +
                                         " - Click that cell with the middle button");
}

TEST_P(GameMenuByHand, GivesHintsAndRestarts) {
  const ExpectedGame opened = PlaysExample();
  for (std::size_t way = 0; way < WaysTo(Entry::kHint).size(); ++way) {
    ExpectedGame game = opened;
    for (std::size_t right = 0; right < way; ++right) Places(game, game.FindMark(true, true));
    const Mark wrong = game.FindMark(true, false);
    Places(game, wrong);
    WaysTo(Entry::kHint)[way].act();
    EXPECT_TRUE(SeesHintAt(wrong)) << WaysTo(Entry::kHint)[way].name;
    EXPECT_TRUE(user_->SeesBoard(ExpectedBoard::Playing(game, wrong.cell)));
    WaysTo(Entry::kRestart)[way].act();
    EXPECT_TRUE(user_->SeesText("TextHint", "Press [Hint] if you got stuck"));
    EXPECT_TRUE(user_->SeesBoard(ExpectedBoard::Playing(opened, wrong.cell)));
  }
}

TEST_P(GameMenuByHand, ShowsTheSolutionWhichCanBeTakenBack) {
  const Games games = Plays();
  for (const Way& way : WaysTo(Entry::kSolution)) {
    way.act();
    EXPECT_TRUE(user_->SeesBoard(ExpectedBoard::Solved(ExampleRecord()))) << way.name;
    PressKeys("ctrl+z");
    EXPECT_TRUE(SeesGame(games.back())) << way.name;
  }
}

TEST_P(GameMenuByHand, Quits) {
  const ExpectedGame game = PlaysExample();
  for (const Way& way : WaysTo(Entry::kQuit)) {
    SCOPED_TRACE(way.name);
    way.act();
    Answers(kSolver, kQuitSolving, false);
    EXPECT_TRUE(SeesGame(game));
    way.act();
    Answers(kSolver, kQuitSolving, true);
    EXPECT_TRUE(SeesExample());
    user_->Press("CommandSolve");
    EXPECT_TRUE(SeesGame(game));
  }
}

TEST_P(GameMenuByHand, ExplainsTheWay) {
  PlaysExample();
  for (const Way& way : WaysTo(Entry::kExplainWay)) {
    way.act();
    Closes(Dialog("Tessel Sudoku - Explain Way"), "Escape");
  }
}

TEST_P(GameMenuByHand, KilledProgramsGameIsContinuedWithItsHistory) {
  const Games games = Plays();
  for (std::size_t way = 0; way < WaysTo(Entry::kContinue).size(); ++way) {
    SCOPED_TRACE(way);
    Starts();
    EXPECT_TRUE(user_->SeesBoard(ExpectedBoard::Empty())) << "offered, not forced";
    WaysTo(Entry::kContinue)[way].act();
    EXPECT_TRUE(SeesGame(games[3]));
    PressKeys("ctrl+z");
    EXPECT_TRUE(SeesGame(games[2]));
    PressKeys("ctrl+z");
    EXPECT_TRUE(SeesGame(games[1]));
    PressKeys("ctrl+y");
    PressKeys("ctrl+y");
    EXPECT_TRUE(SeesGame(games[3]));
  }
}

TEST_P(GameMenuByHand, WhatIsNoGameIsPutAside) {
  std::ofstream(GameFile(), std::ios::binary) << std::string(5000, '\xfe');
  Starts();
  user_->Choose(Entry::kContinue);
  EXPECT_TRUE(user_->SeesText("Notice", "There is no game in " + GameFile().string() +
                                            " (not a game); it was renamed to " +
                                            GameFile().string() + ".broken"));
  EXPECT_FALSE(std::filesystem::exists(GameFile()));
  EXPECT_TRUE(SeesGame(PlaysExample()));
}

INSTANTIATE_TEST_SUITE_P(AtTwoSizes, GameMenuByHand, AtTwoSizes(), SizeName);

}  // namespace
}  // namespace tessel
