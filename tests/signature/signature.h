// One number for what the program makes of 200 seeds, and one for each stage, so that a difference
// can be told to a stage: a layout that differs changes all that follows, a hint only the last.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessel {

// FNV-1a, 64 bits.
class Fingerprint {
 public:
  void Add(std::uint8_t byte) { value_ = (value_ ^ byte) * 0x100000001B3u; }
  void Add(std::string_view text) {
    for (const char letter : text) Add(static_cast<std::uint8_t>(letter));
  }
  // Numbers of which only the lowest 16 bits count.
  template <typename Numbers>
  void AddEach(const Numbers& numbers) {
    for (const auto number : numbers) {
      Add(static_cast<std::uint8_t>(number & 0xFF));
      Add(static_cast<std::uint8_t>(number >> 8 & 0xFF));
    }
  }
  std::uint64_t Value() const { return value_; }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325u;
};

// "0x" and 16 digits.
std::string HexOf(std::uint64_t number);

struct Signature {
  std::uint64_t layouts = 0;
  std::uint64_t fills = 0;
  std::uint64_t puzzles = 0;
  std::uint64_t hints = 0;

  friend bool operator==(const Signature&, const Signature&) = default;
};

// Saw, Fill, Conceal and Solve for each seed, through the buttons: random, rotational and regular
// layouts, concealed singly and in pairs, played to the end in a random order of cells with a hint
// before each, with pencil marks kept by the program and by hand.
Signature SignatureOf(int seeds);

inline constexpr int kSignatureSeeds = 200;

// To be changed only together with a change of behaviour that is meant.
inline constexpr Signature kRecordedSignature{0x8530548E8EBC8BA5, 0xE7B3BFC1C949FF65,
                                              0x9DA35692DC0D0D34, 0x8ED856B9ABBF9D32};

}  // namespace tessel
