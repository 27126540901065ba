// A whole game in the real window, once with the mouse and once with the keyboard alone. What is
// painted is compared with the game as its rules have it.
#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "tests/e2e/puzzle_file_reading.h"
#include "tests/e2e/user.h"

namespace tessel {
namespace {

// What a player can do, whatever with.
class Hand {
 public:
  explicit Hand(User& user) : user_(user) {}
  virtual ~Hand() = default;

  virtual void Press(const char* control) = 0;
  virtual void Place(int cell, int digit) = 0;
  virtual void RightClick(int cell, int digit) = 0;
  virtual void TakeOut(int cell) = 0;
  virtual void Reset(int cell) = 0;
  virtual User::By Kind() const = 0;

 protected:
  User& user_;
};

class MouseHand final : public Hand {
 public:
  using Hand::Hand;
  void Press(const char* control) override { user_.Press(control); }
  void Place(int cell, int digit) override { user_.ClickMark(cell, digit, MouseKey::kLeft); }
  void RightClick(int cell, int digit) override { user_.ClickMark(cell, digit, MouseKey::kRight); }
  void TakeOut(int cell) override { user_.ClickMark(cell, 5, MouseKey::kRight); }
  void Reset(int cell) override { user_.ClickMark(cell, 5, MouseKey::kMiddle); }
  User::By Kind() const override { return User::By::kMouse; }
};

class KeyboardHand final : public Hand {
 public:
  using Hand::Hand;
  void Press(const char* control) override { user_.PressShortcut(control); }
  void Place(int cell, int digit) override { user_.PressOnCell(cell, QString::number(digit)); }
  void RightClick(int cell, int digit) override {
    user_.PressOnCell(cell, "ctrl+" + QString::number(digit));
  }
  void TakeOut(int cell) override { user_.PressOnCell(cell, "Delete"); }
  void Reset(int cell) override { user_.PressOnCell(cell, "Insert"); }
  User::By Kind() const override { return User::By::kKeyboard; }
};

class WholeGame : public testing::Test {
 protected:
  WholeGame() { InstallProgram(folder_.Path()); }

  // Plays with the same hand from the first Saw to the end of the program; `interlude` comes in the
  // middle of the game.
  void Play(User& user, Hand& hand, const std::function<void()>& interlude);

  TemporaryFolder folder_;

 private:
  void MakePuzzle();
  void ToggleMarks();
  void TryWhatDoesNothing();
  void PlaceAndTakeOut();
  void PlaceAWrongDigitAndAsk();
  void GoOnWithoutUpdates();
  void QuitAndComeBack();
  void FillToTheApplause();
  void ShowTheSolution();
  void LeaveTheProgram();

  void Place(Mark mark);
  testing::AssertionResult SeesGame() const;
  testing::AssertionResult SeesOpenBoard(bool open) const;

  User* user_ = nullptr;
  Hand* hand_ = nullptr;
  std::optional<ExpectedGame> game_;
  std::optional<int> redCaptions_;  // those of this cell's row and column
};

void WholeGame::Play(User& user, Hand& hand, const std::function<void()>& interlude) {
  user_ = &user;
  hand_ = &hand;
  ASSERT_NO_FATAL_FAILURE(MakePuzzle());
  const std::function<void()> phases[] = {
      [&] { ToggleMarks(); },
      [&] { TryWhatDoesNothing(); },
      [&] { PlaceAndTakeOut(); },
      [&] { PlaceAWrongDigitAndAsk(); },
      interlude,
      [&] { GoOnWithoutUpdates(); },
      [&] { QuitAndComeBack(); },
      [&] { FillToTheApplause(); },
      [&] { ShowTheSolution(); },
      [&] { LeaveTheProgram(); },
  };
  for (const auto& phase : phases) {
    phase();
    ASSERT_FALSE(HasFailure()) << "the game cannot go on";
  }
}

void WholeGame::MakePuzzle() {
  for (const Generation& command : {kSaw, kFill, kConceal}) {
    hand_->Press(command.button);
    ASSERT_TRUE(user_->SeesTime(command.done));
  }
  EXPECT_TRUE(user_->SeesStage(Stage::kPuzzleConcealed));
  EXPECT_TRUE(user_->SeesSolveButtons(false));
  game_.emplace(OnlyRecord(folder_.PuzzleFile()));
  hand_->Press("CommandSolve");
  EXPECT_TRUE(user_->SeesCaption("Tessel Sudoku"));
  EXPECT_TRUE(user_->SeesSolveButtons(true));
  EXPECT_TRUE(user_->SeesText("TextHint", "Press [Hint] if you got stuck"));
  EXPECT_TRUE(SeesOpenBoard(true));
  ASSERT_TRUE(SeesGame());
}

void WholeGame::ToggleMarks() {
  for (const bool shown : {true, false}) {
    const Mark mark = game_->FindMark(shown, false);
    hand_->RightClick(mark.cell, mark.digit);
    game_->RightClick(mark.cell, mark.digit);
    EXPECT_TRUE(SeesGame());
  }
}

void WholeGame::TryWhatDoesNothing() {
  const Mark hidden = game_->FindMark(false, false);
  hand_->Place(hidden.cell, hidden.digit);
  const int given = game_->FindGiven();
  hand_->Place(given, 1);
  hand_->RightClick(given, 9);
  hand_->TakeOut(given);
  hand_->Reset(given);
  EXPECT_TRUE(SeesGame());
}

void WholeGame::PlaceAndTakeOut() {
  const Mark first = game_->FindMark(true, true);
  Place(first);
  Place(game_->FindMark(true, true));
  Place(game_->FindMark(true, true));
  EXPECT_TRUE(SeesGame());
  hand_->TakeOut(first.cell);
  game_->RightClick(first.cell, first.digit);
  EXPECT_TRUE(SeesGame());
}

void WholeGame::PlaceAWrongDigitAndAsk() {
  const Mark wrong = game_->FindMark(true, false);
  Place(wrong);
  EXPECT_TRUE(SeesGame());
  hand_->Press("CommandHint");
  redCaptions_ = wrong.cell;
  const std::string name{"ABCDEFGHJ"[RowOf(wrong.cell)], "123456789"[ColumnOf(wrong.cell)]};
  EXPECT_TRUE(user_->SeesText("TextHint", "Incorrect number " + std::to_string(wrong.digit) +
                                              " at cell " + name +
                                              " - Click that cell with the middle button"));
  EXPECT_TRUE(SeesGame());
  hand_->Reset(wrong.cell);
  game_->Reset(wrong.cell);
  EXPECT_TRUE(SeesGame());
}

void WholeGame::GoOnWithoutUpdates() {
  EXPECT_TRUE(SeesGame());
  const Mark hidden = game_->FindMark(false, false);
  hand_->Press("CheckPencilmarks");
  game_->UpdatePencilmarks(false);
  EXPECT_TRUE(SeesGame());
  hand_->RightClick(hidden.cell, hidden.digit);
  hand_->Reset(hidden.cell);
  EXPECT_TRUE(SeesGame());
  Place(hidden);
  EXPECT_TRUE(SeesGame());
  hand_->TakeOut(hidden.cell);
  game_->RightClick(hidden.cell, hidden.digit);
  EXPECT_TRUE(SeesGame());
  hand_->Press("CheckPencilmarks");
  game_->UpdatePencilmarks(true);
  EXPECT_TRUE(SeesGame());
  hand_->Press("CommandRestart");
  game_->Restart();
  EXPECT_TRUE(SeesGame());
}

void WholeGame::QuitAndComeBack() {
  hand_->Press("CommandQuit");
  EXPECT_TRUE(user_->Answers(kSolver, kQuitSolving, false, hand_->Kind()));
  EXPECT_TRUE(SeesGame());
  hand_->Press("CommandQuit");
  EXPECT_TRUE(user_->Answers(kSolver, kQuitSolving, true, hand_->Kind()));
  redCaptions_.reset();
  EXPECT_TRUE(user_->SeesSolveButtons(false));
  EXPECT_TRUE(user_->SeesBoard(ExpectedBoard::Concealed(game_->Puzzle())));
  hand_->Press("CommandSolve");
  EXPECT_TRUE(user_->SeesSolveButtons(true));
  EXPECT_TRUE(SeesGame());
}

void WholeGame::FillToTheApplause() {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (game_->Given(cell) == 0) Place({cell, game_->Solution(cell)});
  }
  ASSERT_TRUE(game_->Full());
  EXPECT_TRUE(SeesGame());
  EXPECT_TRUE(SeesOpenBoard(false));
  // The board is closed: neither the disabled buttons nor the cells answer.
  for (int cell = 0; cell < kCellCount; cell += 40) hand_->TakeOut(cell);
  hand_->Press("CommandHint");
  hand_->Press("CommandSolution");
  EXPECT_TRUE(user_->SeesText("TextHint", "Press [Hint] if you got stuck"));
  EXPECT_TRUE(SeesGame());
}

void WholeGame::ShowTheSolution() {
  hand_->Press("CommandRestart");
  game_->Restart();
  EXPECT_TRUE(SeesGame());
  EXPECT_TRUE(SeesOpenBoard(true));
  hand_->Press("CommandSolution");
  EXPECT_TRUE(user_->SeesBoard(ExpectedBoard::Solved(game_->Puzzle())));
  EXPECT_TRUE(SeesOpenBoard(false));
}

void WholeGame::LeaveTheProgram() {
  hand_->Press("CommandExit");
  EXPECT_TRUE(user_->Answers("Tessel Sudoku", kQuitProgram, false, hand_->Kind()));
  EXPECT_TRUE(user_->SeesBoard(ExpectedBoard::Solved(game_->Puzzle())));
  hand_->Press("CommandExit");
  EXPECT_TRUE(user_->Answers("Tessel Sudoku", kQuitProgram, true, hand_->Kind()));
  EXPECT_TRUE(user_->Program().Ended());
  EXPECT_EQ(user_->Program().ExitStatus(), 0);
}

void WholeGame::Place(Mark mark) {
  hand_->Place(mark.cell, mark.digit);
  game_->Place(mark.cell, mark.digit);
}

testing::AssertionResult WholeGame::SeesGame() const {
  return user_->SeesBoard(ExpectedBoard::Playing(*game_, redCaptions_));
}

testing::AssertionResult WholeGame::SeesOpenBoard(bool open) const {
  if (const auto hint = user_->SeesButton("CommandHint", "Hint", open); !hint) return hint;
  return user_->SeesButton("CommandSolution", "Solution", open);
}

TEST_F(WholeGame, IsPlayedWithTheMouseAtTwoWindowSizes) {
  User user(folder_.Path());
  EXPECT_TRUE(user.ResizesWindow({1240, 1010}));
  MouseHand hand(user);
  Play(user, hand, [&] { EXPECT_TRUE(user.ResizesWindow({500, 760})); });
}

TEST_F(WholeGame, IsPlayedWithTheKeyboardAlone) {
  User user(folder_.Path());
  KeyboardHand hand(user);
  Play(user, hand, [] {});
}

}  // namespace
}  // namespace tessel
