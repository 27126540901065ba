#include "tests/soak/player.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

#include "tests/hints/hint_player.h"
#include "tests/layout/layout_checks.h"
#include "tests/oracle/search/independent_solver.h"
#include "tests/soak/game_at_hand.h"
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

Player::Player(std::uint64_t seed) : random_(seed) {
  StartProgram(std::make_unique<TestProgram>(1'000'000 * seed));
}

void Player::StartProgram(std::unique_ptr<TestProgram> program) {
  program_ = std::move(program);
  program_->view.onPump = [this](long) {
    if (stopAt_ > 0 && --stopAt_ == 0) {
      ++made.stops;
      Click(program_->Display().Of(Button::CommandGo).enabled ? Button::CommandGo
                                                              : Button::CommandConceal);
    }
  };
}

void Player::MakePuzzle() {
  program_->Tick(CheckBox::MakeRegular, Draw(3) == 0);
  program_->Tick(CheckBox::Rotational, Draw(2) == 0);
  program_->Tick(CheckBox::ConcealRotational, Draw(2) == 0);
  program_->Tick(CheckBox::CheckVisualize, Draw(10) == 0);
  Click(Button::CommandSaw);
  CheckLayout();
  RunCommand(Button::CommandGo, Button::CommandConceal);
  CheckSolution();
  RunCommand(Button::CommandConceal, Button::CommandSolve);
  CheckPuzzle();
  ++made.puzzles;
  program_->player.played.clear();
  program_->view.questions.clear();
}

// Until it has enabled the next stage: now and then it is stopped once before.
void Player::RunCommand(Button button, Button next) {
  if (Draw(kStopOneIn) == 0) {
    stopAt_ = 1 + Draw(200);
    Click(button);
    EXPECT_NE(program_->Display().Of(next).enabled, stopAt_ == 0) << "must heed Stop alone";
    stopAt_ = 0;
    if (program_->Display().Of(next).enabled) return;
  }
  Click(button);
  EXPECT_TRUE(program_->Display().Of(next).enabled) << "the command has not completed";
}

void Player::CheckLayout() {
  EXPECT_TRUE(IsLayout(State()));
  EXPECT_TRUE(IsPaintedInCageColours(State(), program_->Display()));
  if (program_->Display().Checked(CheckBox::Rotational) &&
      !program_->Display().Checked(CheckBox::MakeRegular)) {
    EXPECT_TRUE(IsRotational(State()));
  }
}

void Player::CheckSolution() {
  EXPECT_TRUE(oracle::IsFilling(OracleLayoutOf(State()), State().WorkGrid));
}

void Player::CheckPuzzle() {
  CheckSolution();
  oracle::IndependentSolver solver(OracleLayoutOf(State()));
  EXPECT_EQ(solver.CountSolutions(State().Puzzle, 2), 1);
  EXPECT_EQ(solver.Solution(), State().WorkGrid);
  const auto givens = kCellCount - std::ranges::count(State().Puzzle, 0);
  EXPECT_GE(givens, program_->Display().Checked(CheckBox::ConcealRotational) ? 23 : 24);
  PuzzleRecord saved;
  std::ifstream file(program_->folder.PuzzleFile(), std::ios::binary);
  file.seekg(made.puzzles * static_cast<long>(sizeof saved));
  EXPECT_TRUE(file.read(reinterpret_cast<char*>(&saved), sizeof saved));
  EXPECT_TRUE(saved == State().SavedPuzzle);
  EXPECT_EQ(file.peek(), std::ifstream::traits_type::eof());
}

void Player::BringPuzzle() {
  const NewPuzzleWish wish{.layout = static_cast<maker::LayoutKind>(Draw(3)),
                           .symmetricGivens = Draw(2) == 0,
                           .level = static_cast<grade::Level>(1 + Draw(3))};
  const Puzzle puzzle =
      Pasted(MadeAsWished(wish, program_->main.DrawSeed()), static_cast<std::size_t>(made.opened));
  const auto before = std::filesystem::file_size(program_->folder.PuzzleFile());
  EXPECT_TRUE(program_->main.OpenPuzzle(puzzle));
  EXPECT_EQ(program_->main.PuzzleAtHand(), puzzle);
  EXPECT_EQ(std::filesystem::file_size(program_->folder.PuzzleFile()), before);
  EXPECT_FALSE(program_->main.CanUndo());
  ++made.opened;
  program_->view.questions.clear();
}

void Player::PlayGame() {
  PlayToTheEnd();
  GoBackAndForth();
  if (Draw(2) == 0) ContinueFromBefore();
  EXPECT_EQ(State().PlayBoard.Board, State().PlayBoard.Solution);
  EXPECT_FALSE(std::filesystem::exists(program_->folder.Path() / kGameFileName)) << "it is over";
  if (Draw(2) == 0) Click(Button::CommandQuit);
  ++made.games;
}

void Player::PlayToTheEnd() {
  Click(Button::CommandSolve);
  program_->Tick(CheckBox::CheckPencilmarks);
  asksSpecialPass_ = Draw(2) == 0;
  hasWholeHistory_ = true;
  while (program_->Display().Of(Button::CommandSolution).enabled && !testing::Test::HasFailure()) {
    MakeMistakes();
    if (Draw(4) == 0) ContinueInAnyMode();
    RepairMistakes();
    if (!FollowHints()) PlaceSomeDigit();
  }
  EXPECT_EQ(State().PlayBoard.Board, State().PlayBoard.Solution);
}

bool Player::FollowHints() {
  HintPlayer hints(*program_);
  hints.asksSpecialPass = asksSpecialPass_;
  const bool isFull = hints.Play();
  for (const auto& [name, count] : hints.counts) made.hints += count;
  return isFull;
}

void Player::MakeMistakes() {
  for (int mistake = Draw(12); mistake > 0; --mistake) {
    constexpr std::array buttons{MouseButton::kLeft, MouseButton::kRight, MouseButton::kMiddle};
    const int cell = Draw(kCellCount);
    // A full board would end the game.
    if (std::ranges::count(State().PlayBoard.Board, 0) == 1) return;
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
  const int digit = State().PlayBoard.Board[cell];
  if (stale) {
    EXPECT_EQ(digit, sentence[13] - '0');
    RemoveStaleMarks(cell);
  } else {
    EXPECT_NE(digit, State().PlayBoard.Solution[cell]);
    ClickMark(cell, 5, MouseButton::kMiddle);
  }
  return true;
}

void Player::RemoveStaleMarks(int cell) {
  const int digit = State().PlayBoard.Board[cell];
  for (int other = 0; other < kCellCount; ++other) {
    const bool peer = RowOf(other) == RowOf(cell) || ColumnOf(other) == ColumnOf(cell) ||
                      State().CageOfCell[other] == State().CageOfCell[cell];
    if (!peer || !Holds(State().Candidates[other], digit)) continue;
    ClickMark(other, digit, MouseButton::kRight);
    EXPECT_FALSE(Holds(State().Candidates[other], digit));
  }
}

void Player::PlaceSomeDigit() {
  int cell = Draw(kCellCount);
  while (State().PlayBoard.Board[cell] != 0) cell = (cell + 1) % kCellCount;
  const int digit = State().PlayBoard.Solution[cell];
  ClickMark(cell, digit, MouseButton::kLeft);
  EXPECT_EQ(State().PlayBoard.Board[cell], digit);
  ++made.digitsWithoutHint;
}

// To the first position and to the last again.
void Player::GoBackAndForth() {
  const Position last = State();
  long steps = 0;
  for (; program_->main.CanUndo(); ++steps) program_->main.Undo();
  if (hasWholeHistory_) {
    EXPECT_TRUE(std::ranges::equal(State().PlayBoard.Board, State().SavedPuzzle.Board));
  }
  made.undone += steps;
  for (; program_->main.CanRedo(); --steps) program_->main.Redo();
  EXPECT_EQ(steps, 0);
  EXPECT_EQ(static_cast<const Position&>(State()), last);
}

void Player::ContinueInAnyMode() {
  program_->Tick(CheckBox::CheckPencilmarks, Draw(2) == 0);
  ContinueAnew();
  program_->Tick(CheckBox::CheckPencilmarks);
}

// Takes back some of the finished game, and does it again in a new program.
void Player::ContinueFromBefore() {
  const Position last = State();
  for (int steps = 1 + Draw(kKeptSteps); steps > 0; --steps) program_->main.Undo();
  ContinueAnew();
  while (program_->main.CanRedo()) program_->main.Redo();
  EXPECT_EQ(static_cast<const Position&>(State()), last);
}

// Leaves the game where it is, as a program does that is killed, and goes on in a new one.
void Player::ContinueAnew() {
  if (!program_->main.CanUndo() && !program_->main.CanRedo()) return;
  const GameAtHand before = WalkedThrough(program_->main);
  hasWholeHistory_ = hasWholeHistory_ && before.back.size() < kKeptSteps;
  StartProgram(std::make_unique<TestProgram>(program_->clock.nextSeed, UnthreadedCalls::Shared(),
                                             program_->home));
  EXPECT_TRUE(program_->main.CanContinue());
  program_->main.ContinueLastGame();
  EXPECT_FALSE(program_->main.CanContinue()) << "it is on the board";
  EXPECT_TRUE(WalkedThrough(program_->main) == before);
  ++made.continued;
}

std::string Player::AskHint() {
  Click(Button::CommandHint);
  return program_->Display().TextHint();
}

void Player::Click(Button button) {
  ++made.events;
  program_->main.Click(button);
}

void Player::ClickMark(int cell, int digit, MouseButton button) {
  ++made.events;
  program_->ClickMark(cell, digit, button);
}

}  // namespace tessel
