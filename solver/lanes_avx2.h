// 32 lanes of 16 bits in two parts of 32 bytes. To be compiled with -mavx2.
#pragma once

#ifdef __AVX2__
#include <immintrin.h>

#include "solver/places.h"

namespace tessel::solver {

class Avx2Lanes {
 public:
  static Avx2Lanes Load(const std::uint16_t* lanes) {
    const auto* const parts = reinterpret_cast<const __m256i*>(lanes);
    return {_mm256_load_si256(parts), _mm256_load_si256(parts + 1)};
  }
  static Avx2Lanes Load(const Places& places) { return Load(places.lane); }
  void Store(Places& places) const {
    auto* const parts = reinterpret_cast<__m256i*>(places.lane);
    _mm256_store_si256(parts, low_);
    _mm256_store_si256(parts + 1, high_);
  }

  friend Avx2Lanes operator&(Avx2Lanes a, Avx2Lanes b) {
    return {_mm256_and_si256(a.low_, b.low_), _mm256_and_si256(a.high_, b.high_)};
  }
  friend Avx2Lanes operator|(Avx2Lanes a, Avx2Lanes b) {
    return {_mm256_or_si256(a.low_, b.low_), _mm256_or_si256(a.high_, b.high_)};
  }
  friend Avx2Lanes operator^(Avx2Lanes a, Avx2Lanes b) {
    return {_mm256_xor_si256(a.low_, b.low_), _mm256_xor_si256(a.high_, b.high_)};
  }
  friend Avx2Lanes operator-(Avx2Lanes a, Avx2Lanes b) {
    return {_mm256_andnot_si256(b.low_, a.low_), _mm256_andnot_si256(b.high_, a.high_)};
  }
  // Lane i of the result is lane from[i] of these lanes, all of which lie in the quarters kFirst to
  // kLast of the lanes.
  template <int kFirst, int kLast>
  [[gnu::always_inline]] Avx2Lanes At(Avx2Lanes from) const {
    return {Gathered<kFirst, kLast>(from.low_), Gathered<kFirst, kLast>(from.high_)};
  }

  // The lanes without a bit, bit i standing for lane i.
  std::uint32_t Empty() const {
    const __m256i zero = _mm256_setzero_si256();
    return MaskOf(_mm256_cmpeq_epi16(low_, zero), _mm256_cmpeq_epi16(high_, zero));
  }
  // The lanes with one bit at most, or two.
  std::uint32_t AtMostOne() const { return WithoutLowest().Empty(); }
  std::uint32_t AtMostTwo() const { return WithoutLowest().AtMostOne(); }

 private:
  Avx2Lanes(__m256i low, __m256i high) : low_(low), high_(high) {}

  Avx2Lanes WithoutLowest() const {
    const __m256i ones = _mm256_set1_epi16(-1);
    return *this & Avx2Lanes(_mm256_add_epi16(low_, ones), _mm256_add_epi16(high_, ones));
  }

  // Packing takes the halves of both parts in turns, which the permutation undoes.
  static std::uint32_t MaskOf(__m256i low, __m256i high) {
    const __m256i packed = _mm256_permute4x64_epi64(_mm256_packs_epi16(low, high), 0xD8);
    return static_cast<std::uint32_t>(_mm256_movemask_epi8(packed));
  }

  // A shuffle reaches 16 bytes, so each quarter of the lanes is asked for what it has. The numbers
  // of bytes outside it are made numbers above 127, for which a shuffle gives 0.
  template <int kFirst, int kLast>
  [[gnu::always_inline]] __m256i Gathered(__m256i from) const {
    const __m256i bytes = _mm256_add_epi8(_mm256_mullo_epi16(from, _mm256_set1_epi16(0x202)),
                                          _mm256_set1_epi16(0x100));
    __m256i gathered = _mm256_setzero_si256();
    for (int quarter = kFirst; quarter <= kLast; ++quarter) {
      const __m256i half = quarter < 2 ? low_ : high_;
      const __m256i twice = quarter % 2 == 0 ? _mm256_permute4x64_epi64(half, 0x44)
                                             : _mm256_permute4x64_epi64(half, 0xEE);
      const __m256i within =
          _mm256_sub_epi8(bytes, _mm256_set1_epi8(static_cast<char>(16 * quarter)));
      const __m256i wanted = _mm256_adds_epu8(within, _mm256_set1_epi8(0x70));
      gathered = _mm256_or_si256(gathered, _mm256_shuffle_epi8(twice, wanted));
    }
    return gathered;
  }

  __m256i low_;
  __m256i high_;
};

}  // namespace tessel::solver
#endif
