#include "core/stopwatch.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <locale>

#include "shell/stage_time.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/recording_view.h"

namespace tessel {
namespace {

// A clock that stands still: tests move it between the readings.
FakeClock StoppedClock() {
  FakeClock clock;
  clock.counterStep = 0;
  clock.tickStep = 0;
  return clock;
}

// Starts, lets `counts` of the counter and `ticks` of the tick count pass, and stops.
double Elapsed(FakeClock& clock, std::int64_t counts, std::int64_t ticks) {
  sTime watch(clock);
  watch.Init();
  watch.StartTime();
  clock.counter += counts;
  clock.ticks += ticks;
  watch.StopTime();
  return watch.RetTime();
}

TEST(Stopwatch, CountsWithThePerformanceCounter) {
  FakeClock clock = StoppedClock();
  clock.counter = 5'000;
  clock.ticks = 40;
  EXPECT_DOUBLE_EQ(Elapsed(clock, 2'500'000'000, 7), 2.5);
}

TEST(Stopwatch, CountsTicksWithoutAUsableCounter) {
  for (const std::int64_t frequency : {-1, 0, 1, 1000}) {
    FakeClock clock = StoppedClock();
    clock.frequency = frequency;
    EXPECT_DOUBLE_EQ(Elapsed(clock, 2'500'000'000, 7), 0.007) << frequency;
  }
}

TEST(Stopwatch, TheFrequencyIsComparedAsAFixedPointNumberOfFourDecimals) {
  FakeClock clock = StoppedClock();
  clock.frequency = 9'999'999;  // 999.9999
  EXPECT_DOUBLE_EQ(Elapsed(clock, 10'000'000, 7), 0.007);
  clock.frequency = 10'000'000;  // 1000.0000
  EXPECT_DOUBLE_EQ(Elapsed(clock, 10'000'000, 7), 1.0);
  clock.frequency = 10'000'001;
  EXPECT_DOUBLE_EQ(Elapsed(clock, 10'000'001, 7), 1.0);
}

TEST(Stopwatch, AClockThatGoesBackGivesNoTime) {
  FakeClock clock = StoppedClock();
  EXPECT_EQ(Elapsed(clock, -1, 7), 0.0);
  EXPECT_EQ(Elapsed(clock, -1'000'000'000'000, 7), 0.0);
  clock.frequency = 0;
  EXPECT_EQ(Elapsed(clock, 1'000'000'000, -7), 0.0);
}

TEST(Stopwatch, EveryStopMeasuresFromTheSameStart) {
  FakeClock clock = StoppedClock();
  sTime watch(clock);
  watch.Init();
  watch.StartTime();
  clock.counter += 1'000'000'000;
  watch.StopTime();
  EXPECT_DOUBLE_EQ(watch.RetTime(), 1.0);
  clock.counter += 2'000'000'000;
  EXPECT_DOUBLE_EQ(watch.RetTime(), 1.0);
  watch.StopTime();
  EXPECT_DOUBLE_EQ(watch.RetTime(), 3.0);
}

TEST(Stopwatch, StartsAgainFromANewReading) {
  FakeClock clock = StoppedClock();
  sTime watch(clock);
  watch.Init();
  watch.StartTime();
  clock.counter += 1'000'000'000;
  watch.StartTime();
  clock.counter += 500'000'000;
  watch.StopTime();
  EXPECT_DOUBLE_EQ(watch.RetTime(), 0.5);
}

TEST(Stopwatch, HasNoTimeBeforeItIsStopped) {
  FakeClock clock = StoppedClock();
  const sTime watch(clock);
  EXPECT_EQ(watch.RetTime(), 0.0);
}

class StageTime : public testing::Test {
 protected:
  // The caption after a stage that took that many nanoseconds.
  std::string CaptionAfter(std::int64_t nanoseconds, const std::string& stage = "Sawed") {
    StartStopwatch(state, clock);
    clock.counter += nanoseconds;
    ShowStageTime(state, form, stage);
    return form.Caption();
  }

  FakeClock clock = StoppedClock();
  GameState state;
  RecordingView view;
  Form form{view};
};

TEST_F(StageTime, IsShownInMillisecondsWithTwoDecimals) {
  EXPECT_EQ(CaptionAfter(1'234'000), "Tessel Sudoku - Sawed in 1.23 ms");
  EXPECT_EQ(CaptionAfter(0), "Tessel Sudoku - Sawed in 0.00 ms");
  EXPECT_EQ(CaptionAfter(4'000), "Tessel Sudoku - Sawed in 0.00 ms");
  EXPECT_EQ(CaptionAfter(6'000), "Tessel Sudoku - Sawed in 0.01 ms");
  EXPECT_EQ(CaptionAfter(12'345'678'000), "Tessel Sudoku - Sawed in 12345.68 ms");
  EXPECT_EQ(CaptionAfter(1'000'000, "Filled"), "Tessel Sudoku - Filled in 1.00 ms");
}

TEST_F(StageTime, FitsForTheLongestTimeThatTheCounterHolds) {
  EXPECT_EQ(CaptionAfter(std::numeric_limits<std::int64_t>::max()),
            "Tessel Sudoku - Sawed in 9223372036854.78 ms");
}

TEST_F(StageTime, IsNeverNegative) {
  EXPECT_EQ(CaptionAfter(-5'000'000), "Tessel Sudoku - Sawed in 0.00 ms");
}

struct DecimalComma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
};

TEST_F(StageTime, HasAPointWhereTheLocaleHasAComma) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
  std::setlocale(LC_NUMERIC, "de_DE.UTF-8");  // the C library's part, where it is installed
  EXPECT_EQ(CaptionAfter(1'234'000), "Tessel Sudoku - Sawed in 1.23 ms");
  std::setlocale(LC_NUMERIC, "C");
  std::locale::global(before);
}

TEST_F(StageTime, ReleasesTheStopwatch) {
  StartStopwatch(state, clock);
  EXPECT_NE(state.Stopwatch, nullptr);
  ShowStageTime(state, form, "Sawed");
  EXPECT_EQ(state.Stopwatch, nullptr);
}

}  // namespace
}  // namespace tessel
