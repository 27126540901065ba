#include "tests/soak/player.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "tests/hints/hint_player.h"
#include "tests/layout/layout_checks.h"
#include "tests/oracle/search/independent_solver.h"
#include "tests/soak/travel.h"

namespace tessel {

namespace {

constexpr int kMaxRepairs = 3000;
constexpr int kStopOneIn = 8;

oracle::Layout OracleLayoutOf(const GameState& state) {
  return oracle::LayoutOf(state.CageOfCell);
}

// The cell that the sentence names after "at cell ".
int CellNamedIn(const std::string& sentence) {
  const std::size_t name = sentence.find("at cell ") + 8;
  const std::string rows = "ABCDEFGHJ";
  return CellAt(static_cast<int>(rows.find(sentence[name])), sentence[name + 1] - '1');
}

}  // namespace

Player::Player(std::uint64_t seed)
    : random_(seed), program_(1'000'000 * seed), state_(program_.state()) {
  program_.view.onPump = [this](long) {
    if (stopAt_ > 0 && --stopAt_ == 0) {
      ++made.stops;
      Click(program_.form().Of(Button::CommandGo).enabled ? Button::CommandGo
                                                          : Button::CommandConceal);
    }
  };
}

void Player::MakePuzzle() {
  program_.Tick(CheckBox::MakeRegular, Draw(3) == 0);
  program_.Tick(CheckBox::Rotational, Draw(2) == 0);
  program_.Tick(CheckBox::ConcealRotational, Draw(2) == 0);
  program_.Tick(CheckBox::CheckVisualize, Draw(10) == 0);
  Click(Button::CommandSaw);
  CheckLayout();
  RunCommand(Button::CommandGo, Button::CommandConceal);
  CheckSolution();
  RunCommand(Button::CommandConceal, Button::CommandSolve);
  CheckPuzzle();
  ++made.puzzles;
  program_.player.played.clear();
  program_.view.questions.clear();
}

// Until it has enabled the next stage: now and then it is stopped once before.
void Player::RunCommand(Button button, Button next) {
  if (Draw(kStopOneIn) == 0) {
    stopAt_ = 1 + Draw(200);
    Click(button);
    EXPECT_NE(program_.form().Of(next).enabled, stopAt_ == 0) << "must heed Stop alone";
    stopAt_ = 0;
    if (program_.form().Of(next).enabled) return;
  }
  Click(button);
  EXPECT_TRUE(program_.form().Of(next).enabled) << "the command has not completed";
}

void Player::CheckLayout() {
  EXPECT_TRUE(IsLayout(state_));
  EXPECT_TRUE(IsPaintedInCageColours(state_, program_.form()));
  if (program_.form().Checked(CheckBox::Rotational) &&
      !program_.form().Checked(CheckBox::MakeRegular)) {
    EXPECT_TRUE(IsRotational(state_));
  }
}

void Player::CheckSolution() {
  EXPECT_TRUE(oracle::IsFilling(OracleLayoutOf(state_), state_.WorkGrid));
}

void Player::CheckPuzzle() {
  CheckSolution();
  oracle::IndependentSolver solver(OracleLayoutOf(state_));
  EXPECT_EQ(solver.CountSolutions(state_.Puzzle, 2), 1);
  EXPECT_EQ(solver.Solution(), state_.WorkGrid);
  const auto givens = kCellCount - std::ranges::count(state_.Puzzle, 0);
  EXPECT_GE(givens, program_.form().Checked(CheckBox::ConcealRotational) ? 23 : 24);
  PuzzleRecord saved;
  std::ifstream file(program_.folder.PuzzleFile(), std::ios::binary);
  file.seekg(made.puzzles * static_cast<long>(sizeof saved));
  EXPECT_TRUE(file.read(reinterpret_cast<char*>(&saved), sizeof saved));
  EXPECT_TRUE(saved == state_.SavedPuzzle);
  EXPECT_EQ(file.peek(), std::ifstream::traits_type::eof());
}

void Player::BringPuzzle() {
  const NewPuzzleWish wish{.layout = static_cast<maker::LayoutKind>(Draw(3)),
                           .symmetricGivens = Draw(2) == 0,
                           .level = static_cast<grade::Level>(1 + Draw(3))};
  const Puzzle puzzle =
      Pasted(MadeAsWished(wish, program_.main.DrawSeed()), static_cast<std::size_t>(made.opened));
  const auto before = std::filesystem::file_size(program_.folder.PuzzleFile());
  EXPECT_TRUE(program_.main.OpenPuzzle(puzzle));
  EXPECT_EQ(program_.main.PuzzleAtHand(), puzzle);
  EXPECT_EQ(std::filesystem::file_size(program_.folder.PuzzleFile()), before);
  EXPECT_FALSE(program_.main.CanUndo());
  ++made.opened;
  program_.view.questions.clear();
}

void Player::PlayGame() {
  Click(Button::CommandSolve);
  program_.Tick(CheckBox::CheckPencilmarks);
  HintPlayer hints(program_);
  hints.asksSpecialPass = Draw(2) == 0;
  while (program_.form().Of(Button::CommandSolution).enabled && !testing::Test::HasFailure()) {
    MakeMistakes();
    RepairMistakes();
    if (!hints.Play()) PlaceSomeDigit();
  }
  for (const auto& [name, count] : hints.counts) made.hints += count;
  EXPECT_EQ(state_.PlayBoard.Board, state_.PlayBoard.Solution);
  GoBackAndForth();
  EXPECT_EQ(state_.PlayBoard.Board, state_.PlayBoard.Solution);
  if (Draw(2) == 0) Click(Button::CommandQuit);
  ++made.games;
}

void Player::MakeMistakes() {
  for (int mistake = Draw(12); mistake > 0; --mistake) {
    constexpr std::array buttons{MouseButton::kLeft, MouseButton::kRight, MouseButton::kMiddle};
    const int cell = Draw(kCellCount);
    // A full board would end the game.
    if (std::ranges::count(state_.PlayBoard.Board, 0) == 1) return;
    ClickMark(cell, 1 + Draw(kSide), buttons[static_cast<std::size_t>(Draw(3))]);
    ++made.mistakes;
  }
}

void Player::RepairMistakes() {
  for (int repairs = 0; repairs < kMaxRepairs; ++repairs) {
    if (!Repair(AskHint())) return;
    ++made.repairs;
  }
  ADD_FAILURE() << "the mistakes do not end";
}

// Does what the hint about a mistake asks for; false when it is about something else.
bool Player::Repair(const std::string& sentence) {
  const bool stale = sentence.starts_with("Since number ");
  if (!stale && sentence.find(" - Click that cell with the middle button") == std::string::npos) {
    return false;
  }
  const int cell = CellNamedIn(sentence);
  const int digit = state_.PlayBoard.Board[cell];
  if (stale) {
    EXPECT_EQ(digit, sentence[13] - '0');
    RemoveStaleMarks(cell);
  } else {
    EXPECT_NE(digit, state_.PlayBoard.Solution[cell]);
    ClickMark(cell, 5, MouseButton::kMiddle);
  }
  return true;
}

void Player::RemoveStaleMarks(int cell) {
  const int digit = state_.PlayBoard.Board[cell];
  for (int other = 0; other < kCellCount; ++other) {
    const bool peer = RowOf(other) == RowOf(cell) || ColumnOf(other) == ColumnOf(cell) ||
                      state_.CageOfCell[other] == state_.CageOfCell[cell];
    if (!peer || !Holds(state_.Candidates[other], digit)) continue;
    ClickMark(other, digit, MouseButton::kRight);
    EXPECT_FALSE(Holds(state_.Candidates[other], digit));
  }
}

void Player::PlaceSomeDigit() {
  int cell = Draw(kCellCount);
  while (state_.PlayBoard.Board[cell] != 0) cell = (cell + 1) % kCellCount;
  const int digit = state_.PlayBoard.Solution[cell];
  ClickMark(cell, digit, MouseButton::kLeft);
  EXPECT_EQ(state_.PlayBoard.Board[cell], digit);
  ++made.digitsWithoutHint;
}

// To the first position and to the last again.
void Player::GoBackAndForth() {
  const Position last = state_;
  long steps = 0;
  for (; program_.main.CanUndo(); ++steps) program_.main.Undo();
  EXPECT_TRUE(std::ranges::equal(state_.PlayBoard.Board, state_.SavedPuzzle.Board));
  made.undone += steps;
  for (; program_.main.CanRedo(); --steps) program_.main.Redo();
  EXPECT_EQ(steps, 0);
  EXPECT_EQ(static_cast<const Position&>(state_), last);
}

std::string Player::AskHint() {
  Click(Button::CommandHint);
  return program_.form().TextHint();
}

void Player::Click(Button button) {
  ++made.events;
  program_.main.Click(button);
}

void Player::ClickMark(int cell, int digit, MouseButton button) {
  ++made.events;
  program_.ClickMark(cell, digit, button);
}

}  // namespace tessel
