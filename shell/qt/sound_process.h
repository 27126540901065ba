// The process that plays the sounds, and what it is told.
#pragma once

#include <limits.h>

#include <chrono>
#include <cstdint>

namespace tessel {

// An order is one write to a pipe in packet mode, and so one read: a letter and what belongs to it.
inline constexpr char kLoadOrder = 'l';  // the path, not terminated
inline constexpr char kPlayOrder = 'p';  // a PlayOrder

struct PlayOrder {
  std::int32_t id;
  std::chrono::steady_clock::time_point latestStart;
};

inline constexpr std::size_t kLongestOrder = PIPE_BUF;

// Loads and plays as told through the pipe. Never returns: the process ends with the orders.
[[noreturn]] void PlaySounds(int orders);

}  // namespace tessel
