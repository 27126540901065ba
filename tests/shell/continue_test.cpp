// The game file: kept after each move, continued on command.
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "core/texts.h"
#include "tests/fakes/fake_system_calls.h"
#include "tests/shell/solving_test.h"

namespace tessel {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class Continue : public SolvingTest {
 protected:
  fs::path File() const { return program.folder.Path() / kGameFileName; }
  void PlaceRight(int cell) { Left(cell, KnownSolution(cell)); }
  void Press(Button button) { program.main.Click(button); }
};

TEST_F(Continue, NothingIsKeptBeforeTheFirstMove) {
  EXPECT_FALSE(fs::exists(File()));
  EXPECT_FALSE(program.main.CanContinue());
  Press(Button::CommandRestart);
  Press(Button::CommandHint);
  EXPECT_FALSE(fs::exists(File()));
}

TEST_F(Continue, LaterProgramGoesOnWhereThisOneWas) {
  PlaceRight(kEmpty);
  Right(kOtherEmpty, 4);
  Untick();
  program.main.Undo();
  const std::string board = PictureOf(Display());

  TestProgram later(1, UnthreadedCalls::Shared(), program.home);
  ASSERT_TRUE(later.main.CanContinue());
  later.main.ContinueLastGame();
  EXPECT_EQ(static_cast<const Position&>(later.main.State()),
            static_cast<const Position&>(State()));
  EXPECT_EQ(later.main.State().SavedPuzzle, State().SavedPuzzle);
  for (int cell = 0; cell < kCellCount; ++cell) {
    EXPECT_EQ(later.main.Display().Cell(cell).text, Display().Cell(cell).text);
    EXPECT_EQ(ShownMarks(later.main.Display(), cell), Shown(cell));
    EXPECT_EQ(later.main.Display().Mark(cell, 1).colour, kBlack);
  }
  EXPECT_TRUE(later.player.played.empty()) << "silent";
  EXPECT_TRUE(later.main.Display().Of(Button::CommandSolve).enabled);
  EXPECT_TRUE(later.main.Display().SolveButtonsVisible());
  EXPECT_FALSE(later.main.CanContinue()) << "it is on the board";
  later.main.Redo();
  EXPECT_FALSE(later.main.Display().Checked(CheckBox::CheckPencilmarks));
  while (later.main.CanUndo()) later.main.Undo();
  EXPECT_EQ(later.main.State().PlayBoard, KnownPuzzle());
}

TEST_F(Continue, QuitLeavesTheGameToBeContinued) {
  PlaceRight(kEmpty);
  const Position played = State();
  Press(Button::CommandQuit);
  ASSERT_TRUE(program.main.CanContinue());
  Press(Button::CommandSolve);
  Press(Button::CommandRestart);
  ASSERT_TRUE(program.main.CanContinue()) << "nothing was played since";
  program.view.questions.clear();
  program.main.ContinueLastGame();
  EXPECT_THAT(program.view.questions,
              testing::ElementsAre(std::string(texts::kSolver) + ": " + texts::kQuitSolving));
  EXPECT_EQ(static_cast<const Position&>(State()), played);
}

TEST_F(Continue, RunningGameIsKeptWhenTheQuestionIsDenied) {
  PlaceRight(kEmpty);
  Press(Button::CommandQuit);
  Press(Button::CommandSolve);
  program.view.answer = false;
  ExpectNothingHappens([this] {
    program.main.ContinueLastGame();
    program.view.questions.pop_back();
  });
}

TEST_F(Continue, FinishedGameIsForgottenUntilItsEndIsUndone) {
  FillAllBut(kEmpty);
  EXPECT_TRUE(fs::exists(File()));
  PlaceRight(kEmpty);
  EXPECT_FALSE(fs::exists(File()));
  program.main.Undo();
  EXPECT_TRUE(fs::exists(File()));
  Press(Button::CommandSolution);
  EXPECT_FALSE(fs::exists(File()));
}

TEST_F(Continue, SolutionOfAnotherGameLeavesTheFile) {
  PlaceRight(kEmpty);
  Press(Button::CommandQuit);
  Press(Button::CommandSolve);
  Press(Button::CommandSolution);
  EXPECT_TRUE(fs::exists(File()));
}

TEST_F(Continue, SawLeavesTheGameToBeContinued) {
  PlaceRight(kEmpty);
  const std::string kept = BytesOf(File());
  Press(Button::CommandSaw);
  PlaceRight(kOtherEmpty);
  Press(Button::CommandQuit);
  EXPECT_TRUE(program.main.CanContinue());
}

TEST_F(Continue, FileIsForTheUserAloneAndNothingElseIsLeft) {
  PlaceRight(kEmpty);
  const auto mode = fs::status(File()).permissions();
  EXPECT_EQ(mode & fs::perms::group_all, fs::perms::none);
  EXPECT_EQ(mode & fs::perms::others_all, fs::perms::none);
  for (const auto& file : fs::directory_iterator(program.folder.Path())) {
    const std::string name = file.path().filename().string();
    EXPECT_TRUE(name == kGameFileName || name == "Tessel_Sudoku.sds") << name;
  }
}

TEST_F(Continue, GarbageIsPutAsideAndTold) {
  for (const char* aside : {".broken", ".broken-2"}) {
    std::ofstream(File()) << "garbage" << aside;
    TestProgram later(1, UnthreadedCalls::Shared(), program.home);
    later.main.ContinueLastGame();
    EXPECT_FALSE(later.main.Display().SolveButtonsVisible());
    const fs::path path = File().string() + aside;
    EXPECT_EQ(later.main.Display().Notice(), "There is no game in " + File().string() +
                                                 " (not a game); it was renamed to " +
                                                 path.string());
    EXPECT_EQ(BytesOf(path), std::string("garbage") + aside);
    EXPECT_FALSE(later.main.CanContinue());
  }
}

TEST_F(Continue, WhatIsNoFileIsNotOffered) {
  fs::create_directory(File());
  EXPECT_FALSE(program.main.CanContinue());
  fs::remove(File());
  ASSERT_EQ(mkfifo(File().c_str(), 0600), 0);
  EXPECT_FALSE(program.main.CanContinue());
}

TEST_F(Continue, HugeFileIsNotRead) {
  std::ofstream(File()) << "Tessel Sudoku game 1\n";
  fs::resize_file(File(), 5'000'000'000);
  program.main.ContinueLastGame();
  EXPECT_TRUE(fs::exists(File().string() + ".broken"));
}

class ContinueWithFaults : public testing::TestWithParam<SystemCall> {};

// The failure is told once, and the file holds the game before.
TEST_P(ContinueWithFaults, WhatCannotBeWrittenLeavesTheFileWhole) {
  FakeSystemCalls system;
  TestProgram program(1, system);
  program.Tick(CheckBox::MakeRegular);
  program.MakePuzzle();
  program.main.Click(Button::CommandSolve);
  const fs::path file = program.folder.Path() / kGameFileName;
  const auto place = [&](int nth) {
    for (int cell = 0; cell < kCellCount; ++cell) {
      if (program.State().PlayBoard.Board[cell] != 0 || nth-- > 0) continue;
      return program.ClickMark(cell, program.State().PlayBoard.Solution[cell], MouseButton::kLeft);
    }
  };
  place(0);
  const std::string before = BytesOf(file);
  system.Fail(GetParam(), EIO, 2);
  place(0);
  EXPECT_EQ(program.Display().Notice(),
            "The game could not be kept in " + file.string() + ": Input/output error");
  EXPECT_EQ(BytesOf(file), before);
  program.main.Undo();
  EXPECT_EQ(BytesOf(file), before);
  program.main.Redo();
  EXPECT_NE(BytesOf(file), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(program.folder.Path()), {}), 2);
}

INSTANTIATE_TEST_SUITE_P(Calls, ContinueWithFaults,
                         testing::Values(SystemCall::kOpen, SystemCall::kPwrite,
                                         SystemCall::kRename));

// A player whose moves follow from a seed.
class Player {
 public:
  Player(Tessel_Main& main, std::uint64_t seed) : main_(main), random_(seed) {}
  void Move() {
    const int kind = DrawIndex(random_, 40);
    if (kind == 0) return main_.Undo();
    if (kind == 1) return main_.Redo();
    const int cell = DrawIndex(random_, kCellCount);
    const CellPosition at = MarkCentre(1 + DrawIndex(random_, kSide));
    const auto button = static_cast<MouseButton>(2 << DrawIndex(random_, 2));
    main_.Grid_MouseUp(cell, button, 0, at.x, at.y);
  }

 private:
  Tessel_Main& main_;
  SeededRandom random_;
};

// A process that moves on and on, and counts its moves where this one sees it.
class PlayingProcess {
 public:
  PlayingProcess(Tessel_Main& main, std::uint64_t seed)
      : moves_(*static_cast<volatile long*>(mmap(nullptr, sizeof(long), PROT_READ | PROT_WRITE,
                                                 MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {
    process_ = fork();
    if (process_ != 0) return;
    Player player(main, seed);
    while (true) {
      player.Move();
      moves_ = moves_ + 1;
    }
  }
  // How many moves it has certainly made.
  long KilledAfter(useconds_t time) const {
    while (moves_ == 0) usleep(50);
    usleep(time);
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    return moves_;
  }
  ~PlayingProcess() { munmap(const_cast<long*>(&moves_), sizeof(long)); }

 private:
  volatile long& moves_;
  pid_t process_ = 0;
};

TEST_F(Continue, KilledAtTwoHundredMomentsItLosesNoMoveThatWasMade) {
  SeededRandom random(5);
  int continued = 0;
  for (std::uint64_t seed = 0; seed < 200; ++seed) {
    Press(Button::CommandQuit);
    Press(Button::CommandSolve);
    fs::remove(File());
    const long made = PlayingProcess(program.main, seed)
                          .KilledAfter(static_cast<useconds_t>(DrawIndex(random, 8'000)));
    const std::string kept = BytesOf(File());

    Player player(program.main, seed);  // the same game again
    const Position opened = State();
    for (long move = 0; move < made; ++move) player.Move();
    const Position latest = State();
    player.Move();
    if (kept.empty()) {
      EXPECT_EQ(latest, opened) << "no move has acted";
      continue;
    }
    const auto game = ReadGame(kept);
    ASSERT_TRUE(game.has_value()) << game.error() << " after " << made << " moves";
    EXPECT_TRUE(game->position == latest || game->position == State()) << made << " moves";
    ++continued;
  }
  EXPECT_GT(continued, 150);
}

}  // namespace
}  // namespace tessel
