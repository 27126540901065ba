// What comes in the middle of a running command. A visualised fill is held there by a signal, so
// that a hand of any speed finds it running.
#include <gtest/gtest.h>
#include <signal.h>

#include <optional>

#include "tests/e2e/eventually.h"
#include "tests/e2e/puzzle_file_reading.h"
#include "tests/e2e/user.h"

namespace tessel {
namespace {

class InTheMiddleOfAFill : public testing::Test {
 protected:
  InTheMiddleOfAFill() {
    InstallProgram(folder_.Path());
    user_.emplace(folder_.Path());
  }

  const DesktopWindow& Window() { return user_->Program().Window(); }
  void Hold() { user_->Program().SendSignal(SIGSTOP); }
  void LetGoOn() { user_->Program().SendSignal(SIGCONT); }

  // Starts fills until one is held while its button reads "Stop".
  bool HoldsAFill() {
    return Eventually([this] {
      const std::string before = Window().Caption();
      user_->Press("CommandGo");
      Eventually([&] {
        Hold();
        const std::string caption = Window().Caption();
        const bool started = caption != before;
        if (caption == "Tessel Sudoku" && user_->LooksAsIfFilling()) return true;
        LetGoOn();
        return started && caption != "Tessel Sudoku";
      });
      return Window().Caption() == "Tessel Sudoku" && user_->LooksAsIfFilling();
    });
  }

  // Asks the window manager to close the window, and waits until it has passed that on: it moves
  // the window after that.
  void RequestClosing() {
    Window().PressKeys({"alt+F4"});
    ASSERT_TRUE(Window().MovesAside());
  }

  TemporaryFolder folder_;
  std::optional<User> user_;
};

TEST_F(InTheMiddleOfAFill, StopEndsItWithoutAGrid) {
  ASSERT_TRUE(user_->RunsCommand(kSaw));
  user_->Press("CheckVisualize");
  ASSERT_TRUE(HoldsAFill());
  EXPECT_FALSE(user_->LooksEnabled("CommandSaw", "Saw"));
  EXPECT_FALSE(user_->LooksEnabled("CommandConceal", "Conceal"));
  EXPECT_FALSE(user_->LooksEnabled("CommandSolve", "Solve"));
  EXPECT_FALSE(user_->LooksEnabled("CommandExit", "Exit"));
  user_->Press("CommandGo");
  LetGoOn();
  EXPECT_TRUE(user_->SeesStage(Stage::kLayoutMade));
  EXPECT_FALSE(user_->LooksAsIfFilling());
  EXPECT_EQ(Window().Caption(), "Tessel Sudoku");
}

TEST_F(InTheMiddleOfAFill, ClosingIsRefusedWithoutAQuestionAndTheFillGoesOn) {
  ASSERT_TRUE(user_->RunsCommand(kSaw));
  user_->Press("CheckVisualize");
  ASSERT_TRUE(HoldsAFill());
  RequestClosing();
  LetGoOn();
  EXPECT_TRUE(user_->SeesTime("Filled"));
  EXPECT_FALSE(user_->Program().Asks());
  EXPECT_TRUE(user_->Program().Running());

  RequestClosing();
  EXPECT_TRUE(user_->Answers("Tessel Sudoku", kQuitProgram, false));
  EXPECT_TRUE(user_->SeesStage(Stage::kGridFilled));
  RequestClosing();
  EXPECT_TRUE(user_->Answers("Tessel Sudoku", kQuitProgram, true));
  EXPECT_TRUE(user_->Program().Ended());
  EXPECT_EQ(user_->Program().ExitStatus(), 0);
}

TEST_F(InTheMiddleOfAFill, TheTerminationSignalEndsTheProgramAndLeavesThePuzzlesWhole) {
  ASSERT_TRUE(user_->MakesPuzzle());
  const std::string puzzles = BytesOf(folder_.PuzzleFile());
  ASSERT_EQ(puzzles.size(), sizeof(PuzzleRecord));
  user_->Press("CheckVisualize");
  ASSERT_TRUE(HoldsAFill());
  user_->Program().SendSignal(SIGTERM);
  LetGoOn();
  EXPECT_TRUE(user_->Program().Ended());
  EXPECT_EQ(BytesOf(folder_.PuzzleFile()), puzzles);
}

}  // namespace
}  // namespace tessel
