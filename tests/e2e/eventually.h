// Waiting for what another process does: asked again and again, with a deadline that only a broken
// program reaches.
#pragma once

#include <chrono>
#include <thread>

namespace tessel {

inline constexpr std::chrono::seconds kPatience{60};

// Whether `condition` came true within `patience`.
template <typename Condition>
bool Eventually(Condition condition, std::chrono::milliseconds patience = kPatience) {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return true;
}

}  // namespace tessel
