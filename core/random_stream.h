// Random numbers that are counted, not shared: a stream depends on its seed, its index and its
// purpose alone, so that work can be done in any order, by any number of threads.
#pragma once

#include <cassert>
#include <cstdint>

namespace tessel {

// SplitMix64, started at a mixture of the three numbers. The same numbers everywhere.
class RandomStream {
 public:
  explicit RandomStream(std::uint64_t seed, std::uint64_t index = 0, std::uint64_t purpose = 0)
      : state_(Mixed(Mixed(Mixed(seed) + index) + purpose)) {}

  // Uniform over all 64-bit numbers.
  std::uint64_t Next() { return Mixed(state_ += kStep); }

  // Uniform in 0..n-1, n from 1 to 2^32: the upper half of a 64-bit product, where the few draws
  // that would prefer some results are drawn again.
  std::uint32_t Below(std::uint64_t n) {
    assert(n > 0 && n <= std::uint64_t{1} << 32);
    std::uint64_t product = (Next() >> 32) * n;
    if (static_cast<std::uint32_t>(product) < n) {
      const std::uint64_t unfair = ((std::uint64_t{1} << 32) - n) % n;
      while (static_cast<std::uint32_t>(product) < unfair) product = (Next() >> 32) * n;
    }
    return static_cast<std::uint32_t>(product >> 32);
  }

 private:
  static constexpr std::uint64_t kStep = 0x9E3779B97F4A7C15u;

  static constexpr std::uint64_t Mixed(std::uint64_t number) {
    number = (number ^ (number >> 30)) * 0xBF58476D1CE4E5B9u;
    number = (number ^ (number >> 27)) * 0x94D049BB133111EBu;
    return number ^ (number >> 31);
  }

  std::uint64_t state_;
};

}  // namespace tessel
