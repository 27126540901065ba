// Which puzzles have come up before, in about 16 bytes a puzzle.
#pragma once

#include <cstdint>
#include <vector>

namespace tessel::maker {

// Holds fingerprints of 64 bits instead of what they stand for: among ten million different puzzles
// two have the same one with a probability of about 3 in a million, and one of them is then taken
// for a repeat.
class Seen {
 public:
  Seen() : slots_(kMinSlots) {}

  // Whether the fingerprint is new; it is known from then on.
  bool Add(std::uint64_t fingerprint);
  std::uint64_t Size() const { return size_; }

 private:
  static constexpr std::size_t kMinSlots = 1024;  // always a power of two

  std::uint64_t& SlotOf(std::uint64_t fingerprint);
  void Grow();

  std::vector<std::uint64_t> slots_;  // 0: free
  std::uint64_t size_ = 0;
};

}  // namespace tessel::maker
