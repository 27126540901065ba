#include "tools/progress_line.h"

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iostream>

namespace tessel::tools {

namespace {

constexpr auto kRedrawTime = std::chrono::milliseconds(100);
constexpr int kBarCells = 24;
constexpr const char* kEraseLine = "\r\x1b[K";

std::string Bar(double share) {
  const int full = static_cast<int>(share * kBarCells);
  return std::string(static_cast<std::size_t>(full), '#') +
         std::string(static_cast<std::size_t>(kBarCells - full), '.');
}

std::string Padded(std::uint64_t number) {
  const std::string text = std::to_string(number);
  return number < 10 ? "0" + text : text;
}

// "Easy 12 Moderate 5": the levels that have come up.
std::string LevelsOf(const Tally& tally) {
  std::string text;
  for (std::size_t i = 0; i < tally.levels.size(); ++i) {
    if (tally.levels[i] == 0) continue;
    text += "  " + std::string(grade::NameOf(static_cast<grade::Level>(i + 1))) + " " +
            std::to_string(tally.levels[i]);
  }
  return text;
}

}  // namespace

std::string SpokenTime(double seconds) {
  const auto whole = static_cast<std::uint64_t>(std::llround(std::max(0.0, seconds)));
  if (whole < 60) return std::to_string(whole) + " s";
  if (whole < 3600) return std::to_string(whole / 60) + " min " + Padded(whole % 60) + " s";
  return std::to_string(whole / 3600) + " h " + Padded(whole / 60 % 60) + " min";
}

ProgressLine::ProgressLine(bool quiet, bool countsPuzzles, std::uint64_t goal)
    : quiet_(quiet),
      shown_(!quiet && isatty(STDERR_FILENO) != 0),
      countsPuzzles_(countsPuzzles),
      goal_(goal) {}

ProgressLine::~ProgressLine() {
  if (shown_) std::cerr << kEraseLine << std::flush;
}

void ProgressLine::Show(const Tally& tally, std::uint64_t done) {
  const auto now = Clock::now();
  if (!doneAtStart_) doneAtStart_ = done;
  if (!shown_ || now < next_) return;
  next_ = now + kRedrawTime;
  std::cerr << kEraseLine << HowFar(done, now) << LevelsOf(tally) << std::flush;
}

std::string ProgressLine::HowFar(std::uint64_t done, Clock::time_point now) const {
  const double seconds = std::chrono::duration<double>(now - start_).count();
  const double rate = static_cast<double>(done - *doneAtStart_) / std::max(seconds, 1e-9);
  const double share = goal_ == 0 ? 1 : static_cast<double>(done) / static_cast<double>(goal_);
  std::string line = "[" + Bar(std::min(1.0, share)) + "] " + std::to_string(done) + " of " +
                     std::to_string(goal_) + (countsPuzzles_ ? "" : " tried") + ", " +
                     std::to_string(std::llround(rate)) + "/s";
  if (rate > 0) line += ", " + SpokenTime(static_cast<double>(goal_ - done) / rate) + " left";
  return line;
}

void ProgressLine::Say(const std::string& text) {
  if (quiet_) return;
  std::cerr << (shown_ ? kEraseLine : "") << text << "\n" << std::flush;
}

}  // namespace tessel::tools
