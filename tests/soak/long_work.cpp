// Saws, fills and conceals many layouts and tells the longest of each: every run must end, and a
// click on "Stop" must be answered at once whenever it comes.
#include <gtest/gtest.h>
#include <time.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "tests/fakes/no_disk.h"
#include "tests/fakes/test_program.h"

namespace tessel {
namespace {

constexpr double kLongestWait = 100;  // milliseconds until "Stop" is answered
// Of so many layouts, one has every pump timed and its commands stopped once, which takes longer.
constexpr long kThoroughOneIn = 8;

// Of this thread, whatever else the machine does.
double CpuMilliseconds() {
  timespec time;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

struct Longest {
  double milliseconds = 0;
  double allMilliseconds = 0;
  long pumps = 0;
  long lastPumps = 0;
  double gap = 0;   // between two pumps, in milliseconds
  double pass = 0;  // of concealing, which ends before "Stop" is heeded
  double wait = 0;  // from a click on "Stop" to the end of the command
};

class LongWork {
 public:
  LongWork(bool regular, bool rotational, std::uint64_t firstSeed) : program_(firstSeed, disk_) {
    program_.Tick(CheckBox::MakeRegular, regular);
    program_.Tick(CheckBox::Rotational, rotational);
    program_.view.onPump = [this](long) { WatchPump(); };
  }

  void Run(long layouts) {
    for (long layout = 0; layout < layouts && !testing::Test::HasFailure(); ++layout) {
      program_.Tick(CheckBox::ConcealRotational, layout % 2 == 1);
      thorough_ = layout % kThoroughOneIn == 0;
      Measure(Button::CommandSaw, Button::CommandGo, saw);
      if (thorough_) Stop(Button::CommandGo, fill);
      Measure(Button::CommandGo, Button::CommandConceal, fill);
      if (thorough_) Stop(Button::CommandConceal, conceal);
      Measure(Button::CommandConceal, Button::CommandSolve, conceal);
      ++done;
      if (done % 10'000 == 0) Report();
    }
  }

  void Report() const {
    std::printf("%ld layouts\n", done);
    Print("Saw", saw);
    Print("Fill", fill);
    Print("Conceal", conceal);
    std::printf("  %ld commands stopped in the middle\n", stopped);
    std::fflush(stdout);
  }

  Longest saw;
  Longest fill;
  Longest conceal;
  long done = 0;
  long stopped = 0;

 private:
  void Print(const char* name, const Longest& of) const {
    std::printf(
        "  %-8s mean %8.3f ms, longest %9.3f ms and %8ld pumps; between pumps at most %6.3f ms, "
        "\"Stop\" answered within %6.3f ms",
        name, of.allMilliseconds / static_cast<double>(done), of.milliseconds, of.pumps, of.gap,
        of.wait);
    if (of.pass > 0) std::printf(", longest pass %7.3f ms", of.pass);
    std::printf("\n");
  }

  void Measure(Button button, Button next, Longest& longest) {
    Click(button, longest);
    longest.milliseconds = std::max(longest.milliseconds, now_ - begin_);
    longest.allMilliseconds += now_ - begin_;
    longest.pumps = std::max(longest.pumps, pumps_);
    EXPECT_TRUE(program_.Display().Of(next).enabled) << "does not complete";
    longest.lastPumps = pumps_;
  }

  // Runs the command and stops it at any of as many pumps as it needed the last time; it may have
  // ended before.
  void Stop(Button button, Longest& longest) {
    if (longest.lastPumps == 0) return;
    stopAt_ = 1 + DrawIndex(choice_, static_cast<int>(std::min(longest.lastPumps, 1'000'000L)));
    Click(button, longest);
    const long stopAt = std::exchange(stopAt_, 0);
    if (stopAt > pumps_) return;
    ++stopped;
    longest.wait = std::max(longest.wait, now_ - stoppedAt_);
    EXPECT_LT(now_ - stoppedAt_, kLongestWait) << "pump " << stopAt;
    EXPECT_TRUE(button != Button::CommandGo || pumps_ == stopAt) << "goes on after Stop";
  }

  void Click(Button button, Longest& longest) {
    running_ = button;
    longest_ = &longest;
    pumps_ = 0;
    begin_ = now_ = pass_ = CpuMilliseconds();
    program_.main.Click(button);
    now_ = CpuMilliseconds();
  }

  void WatchPump() {
    ++pumps_;
    if (thorough_) WatchGap();
    if (running_ == Button::CommandConceal) WatchPass();
    if (pumps_ != stopAt_) return;
    stoppedAt_ = CpuMilliseconds();
    program_.main.Click(running_);
  }
  void WatchGap() {
    const double before = std::exchange(now_, CpuMilliseconds());
    longest_->gap = std::max(longest_->gap, now_ - before);
  }
  void WatchPass() {
    if (givens_ == program_.State().WorkGrid) return;
    givens_ = program_.State().WorkGrid;
    const double before = std::exchange(pass_, CpuMilliseconds());
    longest_->pass = std::max(longest_->pass, pass_ - before);
  }

  NoDisk disk_;
  TestProgram program_;
  SeededRandom choice_;
  Longest* longest_ = nullptr;
  Button running_ = Button::CommandSaw;
  CellDigits givens_{};
  long pumps_ = 0;
  bool thorough_ = false;
  long stopAt_ = 0;  // the pump of the running command that brings a click on "Stop"
  double begin_ = 0;
  double now_ = 0;
  double pass_ = 0;  // when the pass of concealing began
  double stoppedAt_ = 0;
};

}  // namespace
}  // namespace tessel

// long_work random|rotational|regular [layouts [first seed]]
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const std::string mode = argc > 1 ? argv[1] : "random";
  const long layouts = argc > 2 ? std::atol(argv[2]) : 100'000;
  const auto seed = argc > 3 ? std::strtoull(argv[3], nullptr, 10) : 1;
  std::printf("%s, first seed %llu\n", mode.c_str(), seed);
  tessel::LongWork work(mode == "regular", mode == "rotational", seed);
  work.Run(layouts);
  if (work.done % 10'000 != 0) work.Report();
  return testing::Test::HasFailure() ? 1 : 0;
}
