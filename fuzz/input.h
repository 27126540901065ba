// A fuzzer's bytes, taken one after the other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tessel::fuzz {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {}

  bool Empty() const { return next_ == end_; }
  // 0 when there are no bytes left.
  int Byte() { return Empty() ? 0 : *next_++; }
  int Word() { return Byte() + 256 * Byte(); }
  // 0..n-1, for n up to 256.
  int Draw(int n) { return Byte() % n; }

 private:
  const std::uint8_t* next_;
  const std::uint8_t* end_;
};

// Ends the program with a report when something does not hold.
inline void Require(bool holds, std::string_view what) {
  if (holds) return;
  std::fprintf(stderr, "broken: %.*s\n", static_cast<int>(what.size()), what.data());
  std::abort();
}

}  // namespace tessel::fuzz
