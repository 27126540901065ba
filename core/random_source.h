// The port to chance, and the one generator behind it.
#pragma once

#include <cassert>
#include <cstdint>

namespace tessel {

class RandomSource {
 public:
  virtual ~RandomSource() = default;

  // The same seed gives the same numbers again.
  virtual void Seed(std::uint64_t seed) = 0;
  // Uniform in [0, 1), single precision.
  virtual float Next() = 0;
};

// Uniform in 0..n-1, n at least 1: the whole part of r * n. The product is taken in double
// precision, where it stays below n for every r below 1.
inline int DrawIndex(RandomSource& random, int n) {
  assert(n > 0);
  return static_cast<int>(static_cast<double>(random.Next()) * n);
}

// The same numbers for the same seed on every machine and library (SplitMix64, 24 bits a draw).
class SeededRandom final : public RandomSource {
 public:
  explicit SeededRandom(std::uint64_t seed = 0) : state_(seed) {}

  void Seed(std::uint64_t seed) override { state_ = seed; }
  float Next() override {
    state_ += 0x9E3779B97F4A7C15u;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    mixed ^= mixed >> 31;
    return static_cast<float>(mixed >> 40) * 0x1p-24F;
  }

 private:
  std::uint64_t state_;
};

}  // namespace tessel
