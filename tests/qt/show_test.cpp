// Visualised work, in the time of the player.
#include <gtest/gtest.h>

#include "shell/qt/show_pace.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

using namespace std::chrono_literals;
using Seconds = std::chrono::duration<double>;

// Time stands still but for the sleeps.
struct Show : WindowProgram {
  explicit Show(std::uint64_t seed = 1) : WindowProgram({}, seed) { frameClock.step = 0ms; }

  Seconds TimeOf(const char* button) {
    frameClock.slept = 0ms;
    frameClock.now += 1s;
    Click(button);
    return frameClock.slept;
  }
};

TEST(Show, CanBeWatchedAndEndsSoon) {
  for (std::uint64_t seed = 1; seed <= 12; ++seed) {
    Show program(seed << 8);
    program.ClickBox("CheckVisualize");
    const Seconds saw = program.TimeOf("CommandSaw");
    EXPECT_TRUE(saw > 1.5s && saw < 3s) << saw.count();
    const Seconds fill = program.TimeOf("CommandGo");
    EXPECT_TRUE(fill > 1.9s && fill < 6s) << fill.count();
    if (seed % 3 == 0) program.ClickBox("ConcealRotational");
    const Seconds conceal = program.TimeOf("CommandConceal");
    EXPECT_TRUE(conceal > 0.7s && conceal < 2s) << conceal.count();
  }
}

TEST(Show, WorkThatIsNotWatchedWaitsForNothing) {
  Show program;
  for (const char* command : {"CommandSaw", "CommandGo", "CommandConceal"}) {
    EXPECT_EQ(program.TimeOf(command), 0s);
  }
}

TEST(Show, StepsGrowShorterUntilTheyCannotBeSeen) {
  for (const Button button : {Button::CommandSaw, Button::CommandGo, Button::CommandConceal}) {
    const ShowPace& pace = PaceOf(button);
    EXPECT_EQ(pace.StepTime(0s), pace.first);
    EXPECT_EQ(pace.StepTime(pace.steady), pace.first);
    EXPECT_LT(pace.StepTime(pace.steady + 100ms), pace.first);
    EXPECT_EQ(pace.StepTime(6s), std::nullopt);
  }
}

TEST(Show, StopAndTheBoxEndItAtOnce) {
  for (const char* control : {"CommandGo", "CheckVisualize"}) {
    Show program;
    program.Click("CommandSaw");
    program.ClickBox("CheckVisualize");
    int sleeps = 0;
    program.frameClock.onSleep = [&] {
      if (++sleeps != 20) return;
      QTimer::singleShot(0, &program.window, [&program, control] {
        QTest::mouseClick(program.Find<QAbstractButton>(control), Qt::LeftButton, {}, QPoint(8, 8));
      });
    };
    program.Click("CommandGo");
    EXPECT_EQ(sleeps, 20) << control;
  }
}

TEST(Show, ALateStopDoesNotStartTheCommandAnew) {
  Show program;
  for (const char* command : {"CommandSaw", "CommandGo", "CommandConceal"}) {
    program.TimeOf(command);
  }
  ASSERT_EQ(program.clock.nextSeed, 5u) << "the start takes one, each command one";
  program.frameClock.now += 399ms;
  program.Click("CommandConceal");
  EXPECT_EQ(program.clock.nextSeed, 5u);
  program.frameClock.now += 1ms;
  program.Click("CommandConceal");
  EXPECT_EQ(program.clock.nextSeed, 6u);
  program.Click("CommandGo");
  EXPECT_EQ(program.clock.nextSeed, 7u) << "other buttons answer at once";
}

}  // namespace
}  // namespace tessel
