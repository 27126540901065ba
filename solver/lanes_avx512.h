// 32 lanes of 16 bits in one register. To be compiled with -mavx512bw.
#pragma once

#ifdef __AVX512BW__
#include <immintrin.h>

#include "solver/places.h"

namespace tessel::solver {

class Avx512Lanes {
 public:
  static Avx512Lanes Load(const std::uint16_t* lanes) { return _mm512_load_si512(lanes); }
  static Avx512Lanes Load(const Places& places) { return Load(places.lane); }
  void Store(Places& places) const { _mm512_store_si512(places.lane, lanes_); }

  friend Avx512Lanes operator&(Avx512Lanes a, Avx512Lanes b) { return a.lanes_ & b.lanes_; }
  friend Avx512Lanes operator|(Avx512Lanes a, Avx512Lanes b) { return a.lanes_ | b.lanes_; }
  friend Avx512Lanes operator^(Avx512Lanes a, Avx512Lanes b) { return a.lanes_ ^ b.lanes_; }
  friend Avx512Lanes operator-(Avx512Lanes a, Avx512Lanes b) { return a.lanes_ & ~b.lanes_; }
  // Lane i of the result is lane from[i] of these lanes, all of which lie in the quarters kFirst to
  // kLast of the lanes.
  template <int kFirst, int kLast>
  Avx512Lanes At(Avx512Lanes from) const {
    return _mm512_permutexvar_epi16(from.lanes_, lanes_);
  }

  // The lanes without a bit, bit i standing for lane i.
  std::uint32_t Empty() const { return _mm512_testn_epi16_mask(lanes_, lanes_); }
  // The lanes with one bit at most, or two.
  std::uint32_t AtMostOne() const { return _mm512_testn_epi16_mask(lanes_, OneLess()); }
  std::uint32_t AtMostTwo() const { return Avx512Lanes(lanes_ & OneLess()).AtMostOne(); }

 private:
  Avx512Lanes(__m512i lanes) : lanes_(lanes) {}

  __m512i OneLess() const { return _mm512_add_epi16(lanes_, _mm512_set1_epi16(-1)); }

  __m512i lanes_;
};

}  // namespace tessel::solver
#endif
