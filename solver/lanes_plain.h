// 32 lanes of 16 bits in parts of 16 bytes, as every machine has them.
#pragma once

#include <cstdint>
#include <cstring>

#include "solver/places.h"

namespace tessel::solver {

class PlainLanes {
 public:
  static PlainLanes Load(const std::uint16_t* lanes) {
    PlainLanes loaded;
    std::memcpy(loaded.parts_, lanes, sizeof loaded.parts_);
    return loaded;
  }
  static PlainLanes Load(const Places& places) { return Load(places.lane); }
  void Store(Places& places) const { std::memcpy(places.lane, parts_, sizeof parts_); }

  friend PlainLanes operator&(PlainLanes a, const PlainLanes& b) {
    for (int i = 0; i < kParts; ++i) a.parts_[i] &= b.parts_[i];
    return a;
  }
  friend PlainLanes operator|(PlainLanes a, const PlainLanes& b) {
    for (int i = 0; i < kParts; ++i) a.parts_[i] |= b.parts_[i];
    return a;
  }
  friend PlainLanes operator^(PlainLanes a, const PlainLanes& b) {
    for (int i = 0; i < kParts; ++i) a.parts_[i] ^= b.parts_[i];
    return a;
  }
  friend PlainLanes operator-(PlainLanes a, const PlainLanes& b) {
    for (int i = 0; i < kParts; ++i) a.parts_[i] &= ~b.parts_[i];
    return a;
  }
  // Lane i of the result is lane from[i] of these lanes, all of which lie in the quarters kFirst to
  // kLast of the lanes.
  template <int kFirst, int kLast>
  PlainLanes At(const PlainLanes& from) const {
    std::uint16_t lanes[kLaneCount];
    std::uint16_t indices[kLaneCount];
    std::memcpy(lanes, parts_, sizeof lanes);
    std::memcpy(indices, from.parts_, sizeof indices);
    std::uint16_t gathered[kLaneCount];
    for (int i = 0; i < kLaneCount; ++i) gathered[i] = lanes[indices[i]];
    return Load(gathered);
  }

  // The lanes without a bit, bit i standing for lane i.
  std::uint32_t Empty() const {
    Part zero[kParts];
    for (int i = 0; i < kParts; ++i) zero[i] = Part(parts_[i] == 0);
    return MaskOf(zero);
  }
  // The lanes with one bit at most, or two.
  std::uint32_t AtMostOne() const { return WithoutLowest().Empty(); }
  std::uint32_t AtMostTwo() const { return WithoutLowest().AtMostOne(); }

 private:
  static constexpr int kParts = 4;
  using Part = std::uint16_t __attribute__((vector_size(16)));

  PlainLanes WithoutLowest() const {
    PlainLanes fewer;
    for (int i = 0; i < kParts; ++i) fewer.parts_[i] = parts_[i] & (parts_[i] - 1);
    return fewer;
  }

  // From lanes that are all ones or zero: a bit of its own for each lane of a half, added up.
  static std::uint32_t MaskOf(const Part (&chosen)[kParts]) {
#ifdef __SSE2__
    using Bytes = char __attribute__((vector_size(16)));
    using Words = short __attribute__((vector_size(16)));
    const auto half = [&](int i) {
      const Bytes packed = __builtin_ia32_packsswb128(Words(chosen[i]), Words(chosen[i + 1]));
      return static_cast<std::uint32_t>(__builtin_ia32_pmovmskb128(packed));
    };
    return half(0) | half(2) << 16;
#else
    std::uint32_t mask = 0;
    for (int i = 0; i < kLaneCount; ++i) mask |= (chosen[i / 8][i % 8] & std::uint32_t{1}) << i;
    return mask;
#endif
  }

  Part parts_[kParts];
};

}  // namespace tessel::solver
