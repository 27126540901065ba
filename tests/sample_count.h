// How many samples a test takes.
#pragma once

namespace tessel {

// All of them, and a tenth under AddressSanitizer, which takes ten times as long: what it looks for
// shows in few samples, and the results are those of the other builds.
template <typename Count>
constexpr Count Samples(Count whole) {
#ifdef __SANITIZE_ADDRESS__
  return whole / 10;
#else
  return whole;
#endif
}

}  // namespace tessel
