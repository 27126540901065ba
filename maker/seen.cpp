#include "maker/seen.h"

#include <utility>

namespace tessel::maker {

bool Seen::Add(std::uint64_t fingerprint) {
  if (fingerprint == 0) fingerprint = 1;  // 0 marks a free slot
  if (3 * (size_ + 1) > 2 * slots_.size()) Grow();
  std::uint64_t& slot = SlotOf(fingerprint);
  if (slot == fingerprint) return false;
  slot = fingerprint;
  ++size_;
  return true;
}

// The slot that holds the fingerprint, or the free one where it belongs. Two thirds of the slots
// are taken at most, so there is one.
std::uint64_t& Seen::SlotOf(std::uint64_t fingerprint) {
  const std::size_t last = slots_.size() - 1;
  std::size_t at = fingerprint & last;
  while (slots_[at] != 0 && slots_[at] != fingerprint) at = (at + 1) & last;
  return slots_[at];
}

void Seen::Grow() {
  std::vector<std::uint64_t> before(2 * slots_.size());
  std::swap(before, slots_);
  for (const std::uint64_t fingerprint : before) {
    if (fingerprint != 0) SlotOf(fingerprint) = fingerprint;
  }
}

}  // namespace tessel::maker
