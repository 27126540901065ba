// A monkey at the real window. To teach it something new, add a row to kHabits.
#include <gtest/gtest.h>

#include <QWidget>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <string>
#include <thread>

#include "core/puzzle_record.h"
#include "core/random_stream.h"
#include "tests/e2e/desktop.h"
#include "tests/e2e/eventually.h"
#include "tests/e2e/process_use.h"
#include "tests/e2e/puzzle_file_reading.h"
#include "tests/e2e/user.h"

namespace tessel {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

double minutes = 10;
std::uint64_t seed = 1;

constexpr auto kMaxRepaintDelay = 1s;
constexpr int kActionsBetweenLooks = 60;
constexpr int kActionsToWarmUp = 240;
constexpr long kMaxGrowth = 24 * 1024;  // kilobytes since the program was warm
constexpr auto kIdleTime = 3s;
constexpr auto kMaxIdleWork = 90ms;  // of processor time in that time
constexpr auto kLongestCommand = 120s;

constexpr const char* kControls[] = {
    "CommandSaw",     "CommandGo",        "CommandConceal",    "CommandSolve",   "CommandHint",
    "CommandRestart", "CommandSolution",  "CommandQuit",       "Rotational",     "MakeRegular",
    "CheckVisualize", "CheckPencilmarks", "ConcealRotational", "CommandConceal", "CommandHint"};
constexpr const char* kKeys[] = {
    "1",      "2",         "3",      "4",           "5",      "6",      "7",      "8",
    "9",      "0",         "Up",     "Down",        "Left",   "Right",  "Tab",    "space",
    "Return", "Escape",    "Delete", "Insert",      "ctrl+3", "ctrl+7", "F1",     "alt+s",
    "alt+f",  "alt+c",     "alt+h",  "alt+r",       "alt+p",  "Home",   "End",    "ctrl+z",
    "ctrl+y", "shift+Tab", "alt+g",  "alt+i",       "alt+e",  "ctrl+n", "ctrl+o", "ctrl+c",
    "ctrl+v", "ctrl+d",    "ctrl+m", "ctrl+shift+o"};

class Monkey {
 public:
  Monkey() : random_(seed) {
    InstallProgram(folder_.Path());
    StartProgram();
  }

  // One thing that a monkey does. The program may end by it, in order; it is started anew then.
  testing::AssertionResult Act();
  // Waits for the end of what goes on, and looks whether all is well.
  testing::AssertionResult LookAround();
  void Tell() const;

 private:
  struct Habit {
    std::uint32_t weight;
    void (Monkey::*act)();
  };
  static const Habit kHabits[];

  void StartProgram() {
    user_.emplace(folder_.Path());
    actionsOfThisRun_ = 0;
    warmKilobytes_.reset();
    ++runs_;
  }
  const DesktopWindow& Window() { return user_->Program().Window(); }
  int Below(int n) { return static_cast<int>(random_.Below(static_cast<std::uint64_t>(n))); }
  template <std::size_t n>
  const char* AnyOf(const char* const (&list)[n]) {
    return list[random_.Below(n)];
  }
  QPoint AnyPlace() {
    const QSize size = Window().Area().size();
    return {Below(std::max(size.width(), 1)), Below(std::max(size.height(), 1))};
  }

  // The habits.
  void PressControl() { user_->Press(AnyOf(kControls)); }
  void ClickAnywhere() { Window().Click(AnyPlace(), static_cast<MouseKey>(1 + Below(3))); }
  void ClickMark() {
    user_->ClickMark(Below(kCellCount), 1 + Below(9), static_cast<MouseKey>(1 + Below(3)));
  }
  void PressKey() { TheDesktop().Xdo({"key", AnyOf(kKeys)}); }
  void HoldKey() { TheDesktop().Xdo({"key", "--repeat", "15", "--delay", "3", AnyOf(kKeys)}); }
  void DragOrScroll();
  void Resize();
  void LoseFocus();
  void MakePuzzle();
  void RequestClosing();

  testing::AssertionResult EndedInOrder();
  void DismissQuestions();
  bool IsAtRest() { return !user_->Program().Asks() && user_->LooksEnabled("CommandExit", "Exit"); }
  testing::AssertionResult RepaintsInTime();
  testing::AssertionResult KeepsItsMemory();
  testing::AssertionResult RestsWhileIdle();
  std::chrono::milliseconds WorkInIdleTime();

  TemporaryFolder folder_;
  RandomStream random_;
  std::optional<User> user_;
  long actions_ = 0;
  long actionsOfThisRun_ = 0;
  int runs_ = 0;
  std::optional<long> warmKilobytes_;
  long lastKilobytes_ = 0;
  Clock::duration slowestRepaint_{0};
  std::chrono::milliseconds mostIdleWork_{0};
  int idleTimes_ = 0;
};

const Monkey::Habit Monkey::kHabits[] = {{30, &Monkey::PressControl}, {10, &Monkey::ClickAnywhere},
                                         {30, &Monkey::ClickMark},    {25, &Monkey::PressKey},
                                         {4, &Monkey::HoldKey},       {4, &Monkey::DragOrScroll},
                                         {3, &Monkey::Resize},        {2, &Monkey::LoseFocus},
                                         {1, &Monkey::MakePuzzle},    {1, &Monkey::RequestClosing}};

testing::AssertionResult Monkey::Act() {
  std::uint32_t all = 0;
  for (const Habit& habit : kHabits) all += habit.weight;
  std::uint32_t draw = random_.Below(all);
  const Habit* habit = kHabits;
  for (; draw >= habit->weight; ++habit) draw -= habit->weight;
  (this->*habit->act)();
  ++actions_;
  ++actionsOfThisRun_;
  return user_->Program().Running() ? testing::AssertionSuccess() : EndedInOrder();
}

void Monkey::DragOrScroll() {
  const QPoint to = AnyPlace();
  Window().Click(AnyPlace());
  TheDesktop().Xdo({"mousedown", "1", "mousemove", "--window", Window().Id(),
                    QString::number(to.x()), QString::number(to.y()), "mouseup", "1", "click", "4",
                    "click", "5"});
}

void Monkey::Resize() {
  TheDesktop().Xdo({"windowsize", Window().Id(), QString::number(300 + Below(1200)),
                    QString::number(300 + Below(800))});
  std::this_thread::sleep_for(100ms);
  user_->NoticesSize();
}

void Monkey::LoseFocus() {
  TheDesktop().Xdo({"windowminimize", Window().Id()});
  if (Below(2) == 0) std::this_thread::sleep_for(200ms);
  TheDesktop().Xdo({"windowactivate", Window().Id()});
}

void Monkey::MakePuzzle() {
  for (const char* command : {"CommandSaw", "CommandGo", "CommandConceal", "CommandSolve"}) {
    user_->Press(command);
    std::this_thread::sleep_for(300ms);
  }
}

// One answer in twelve ends the program.
void Monkey::RequestClosing() {
  TheDesktop().Xdo({"windowactivate", Window().Id(), "key", "alt+F4"});
  std::this_thread::sleep_for(200ms);
  TheDesktop().Xdo({"key", Below(12) == 0 ? "alt+y" : "Escape"});
  std::this_thread::sleep_for(200ms);
}

testing::AssertionResult Monkey::EndedInOrder() {
  if (!user_->Program().EndedInOrder()) return testing::AssertionFailure() << "crashed";
  StartProgram();
  return testing::AssertionSuccess();
}

testing::AssertionResult Monkey::LookAround() {
  DismissQuestions();
  if (!user_->Program().Running()) return EndedInOrder();
  for (const auto look :
       {&Monkey::RepaintsInTime, &Monkey::KeepsItsMemory, &Monkey::RestsWhileIdle}) {
    if (const auto result = (this->*look)(); !result) return result;
  }
  return user_->Program().Running() ? testing::AssertionSuccess() : EndedInOrder();
}

void Monkey::DismissQuestions() {
  for (int attempt = 0; attempt < 10; ++attempt) {
    TheDesktop().Xdo({"windowactivate", Window().Id()});
    if (!user_->Program().Asks()) return;
    TheDesktop().Xdo({"key", "Escape"});
    std::this_thread::sleep_for(100ms);
  }
}

// Covers a patch of the window, uncovers it and waits for the colour of the cover to be gone, which
// takes the window's own paint.
testing::AssertionResult Monkey::RepaintsInTime() {
  constexpr QColor kNowhereElse(255, 0, 255);
  const QRect seen = Window().Area() & QRect(0, 0, Desktop::kWidth, Desktop::kHeight);
  const QRect patch(seen.center() - QPoint(20, 20), QSize(40, 40));
  QWidget cover(nullptr, Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
  cover.setPalette(QPalette(kNowhereElse));
  cover.setGeometry(patch);
  cover.show();
  const auto shows = [&] {
    QCoreApplication::processEvents();
    return TheDesktop().Screenshot(patch).pixelColor(20, 20) == kNowhereElse;
  };
  if (!Eventually(shows, 10s)) {
    return testing::AssertionFailure()
           << "the cover does not show at " << patch.x() << ", " << patch.y();
  }
  cover.hide();
  const auto start = Clock::now();
  Eventually([&] { return !shows(); });
  const auto time = Clock::now() - start;
  slowestRepaint_ = std::max(slowestRepaint_, time);
  if (time <= kMaxRepaintDelay) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "repainted after " << time / 1ms << " ms";
}

testing::AssertionResult Monkey::KeepsItsMemory() {
  lastKilobytes_ = UseOf(user_->Program().Id()).kilobytes;
  if (actionsOfThisRun_ < kActionsToWarmUp) return testing::AssertionSuccess();
  if (!warmKilobytes_) warmKilobytes_ = lastKilobytes_;
  if (lastKilobytes_ - *warmKilobytes_ <= kMaxGrowth) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << "grew from " << *warmKilobytes_ << " to " << lastKilobytes_ << " kB";
}

std::chrono::milliseconds Monkey::WorkInIdleTime() {
  const auto before = UseOf(user_->Program().Id()).processorTime;
  std::this_thread::sleep_for(kIdleTime);
  return UseOf(user_->Program().Id()).processorTime - before;
}

// Where the look of the window does not tell that it is at rest, a command may be running, but not
// for ever.
testing::AssertionResult Monkey::RestsWhileIdle() {
  const auto end = Clock::now() + kLongestCommand;
  const bool isAtRest = Eventually([this] { return IsAtRest(); }, 5s);
  std::this_thread::sleep_for(500ms);
  auto work = WorkInIdleTime();
  while (!isAtRest && work > kMaxIdleWork && Clock::now() < end) work = WorkInIdleTime();
  mostIdleWork_ = std::max(mostIdleWork_, work);
  ++idleTimes_;
  if (work <= kMaxIdleWork) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "worked " << work.count() << " ms while idle";
}

void Monkey::Tell() const {
  const std::size_t records = BytesOf(folder_.PuzzleFile()).size() / sizeof(PuzzleRecord);
  std::printf(
      "seed %llu: %ld actions, %d starts, %zu puzzles; slowest repaint %lld ms; memory %ld kB "
      "warm, "
      "%ld kB now; %d idle times, at most %lld ms of work in %lld s\n",
      static_cast<unsigned long long>(seed), actions_, runs_, records,
      static_cast<long long>(slowestRepaint_ / 1ms), warmKilobytes_.value_or(0), lastKilobytes_,
      idleTimes_, static_cast<long long>(mostIdleWork_.count()),
      static_cast<long long>(std::chrono::seconds(kIdleTime).count()));
  std::fflush(stdout);
}

TEST(Monkey, FindsNothing) {
  Monkey monkey;
  const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                      std::chrono::duration<double, std::ratio<60>>(minutes));
  while (Clock::now() < end && !HasFailure()) {
    for (int action = 0; action < kActionsBetweenLooks && !HasFailure(); ++action) {
      EXPECT_TRUE(monkey.Act());
    }
    if (!HasFailure()) {
      EXPECT_TRUE(monkey.LookAround());
    }
    monkey.Tell();
  }
}

}  // namespace
}  // namespace tessel

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc > 1) tessel::minutes = std::strtod(argv[1], nullptr);
  if (argc > 2) tessel::seed = std::strtoull(argv[2], nullptr, 10);
  return RUN_ALL_TESTS();
}
