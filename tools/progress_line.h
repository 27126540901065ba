// The line on a terminal that tells how far a run is.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "tools/manifest.h"

namespace tessel::tools {

class ProgressLine {
 public:
  // Shown only where standard error is a terminal. `goal`: puzzles wanted, or indices to be tried.
  ProgressLine(bool quiet, bool countsPuzzles, std::uint64_t goal);
  ~ProgressLine();
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  // `done` of the goal. Redraws the line ten times a second at most.
  void Show(const Tally& tally, std::uint64_t done);
  // Prints a line of its own above the bar; does so without a terminal too, but not when quiet.
  void Say(const std::string& text);

 private:
  using Clock = std::chrono::steady_clock;

  // "[#####.....] 50 of 100, 7/s, 7 s left"
  std::string HowFar(std::uint64_t done, Clock::time_point now) const;

  bool quiet_;
  bool shown_;
  bool countsPuzzles_;
  std::uint64_t goal_;
  std::optional<std::uint64_t> doneAtStart_;
  Clock::time_point start_ = Clock::now();
  Clock::time_point next_ = start_;
};

// "1 h 05 min", "3 min 20 s" or "12 s".
std::string SpokenTime(double seconds);

}  // namespace tessel::tools
