// processor.h for x86 from SSSE3 on, 32 and 64 bits.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/lanes.h"

namespace vemi {

namespace detail {

// Instructions by the width of their registers.

HWY_INLINE __m128i packTo8s(__m128i lower, __m128i upper) { return _mm_packs_epi16(lower, upper); }
HWY_INLINE __m128i packTo8u(__m128i lower, __m128i upper) { return _mm_packus_epi16(lower, upper); }
HWY_INLINE __m128i truncate(__m128 v) { return _mm_cvttps_epi32(v); }
HWY_INLINE __m128i round(__m128 v) { return _mm_cvtps_epi32(v); }

#if HWY_TARGET == HWY_SSSE3
/// There is a pack to 16s alone: lanes from 0 on are moved down to its range, and back when packed.
HWY_INLINE __m128i packTo16u(__m128i lower, __m128i upper) {
  const auto moved = [](__m128i v) {
    return _mm_sub_epi32(_mm_andnot_si128(_mm_srai_epi32(v, 31), v), _mm_set1_epi32(32768));
  };
  return _mm_xor_si128(_mm_packs_epi32(moved(lower), moved(upper)), _mm_set1_epi16(INT16_MIN));
}
#else
HWY_INLINE __m128i packTo16u(__m128i lower, __m128i upper) { return _mm_packus_epi32(lower, upper); }
#endif

#if HWY_TARGET <= HWY_AVX2
HWY_INLINE __m256i packTo8s(__m256i lower, __m256i upper) { return _mm256_packs_epi16(lower, upper); }
HWY_INLINE __m256i packTo8u(__m256i lower, __m256i upper) { return _mm256_packus_epi16(lower, upper); }
HWY_INLINE __m256i packTo16u(__m256i lower, __m256i upper) { return _mm256_packus_epi32(lower, upper); }
HWY_INLINE __m256i truncate(__m256 v) { return _mm256_cvttps_epi32(v); }
HWY_INLINE __m256i round(__m256 v) { return _mm256_cvtps_epi32(v); }
#endif

#if HWY_TARGET <= HWY_AVX3
HWY_INLINE __m512i packTo8s(__m512i lower, __m512i upper) { return _mm512_packs_epi16(lower, upper); }
HWY_INLINE __m512i packTo8u(__m512i lower, __m512i upper) { return _mm512_packus_epi16(lower, upper); }
HWY_INLINE __m512i packTo16u(__m512i lower, __m512i upper) { return _mm512_packus_epi32(lower, upper); }
HWY_INLINE __m512i truncate(__m512 v) { return _mm512_cvttps_epi32(v); }
HWY_INLINE __m512i round(__m512 v) { return _mm512_cvtps_epi32(v); }
#endif

}  // namespace detail

/// Signed lanes saturated to half their width. The vectors are the lower and the upper half of each 128-bit block.
template <class D, class V, class T = hn::TFromD<D>>
HWY_INLINE hn::Vec<D> packHalves(D d, V lower, V upper) {
  if constexpr (std::is_same_v<T, int16_t>) return hn::ReorderDemote2To(d, lower, upper);
  if constexpr (std::is_same_v<T, uint16_t>) return hn::Vec<D>{detail::packTo16u(lower.raw, upper.raw)};
  if constexpr (std::is_same_v<T, int8_t>) return hn::Vec<D>{detail::packTo8s(lower.raw, upper.raw)};
  if constexpr (std::is_same_v<T, uint8_t>) return hn::Vec<D>{detail::packTo8u(lower.raw, upper.raw)};
}

/// Towards zero. A NaN and a value beyond 32 bits are invalid and give the lowest integer; the lane library's
/// conversion would mend large values, at twice the cost.
template <class D, class V>
HWY_INLINE hn::Vec<D> truncated(D, V v) {
  return hn::Vec<D>{detail::truncate(v.raw)};
}

/// By the rounding mode that is set; invalid as above.
template <class D, class V>
HWY_INLINE hn::Vec<D> rounded(D, V v) {
  return hn::Vec<D>{detail::round(v.raw)};
}

/// a < b ? a : b, which is b where one of them is a NaN or both are zeros.
template <class V>
HWY_INLINE V lesser(V a, V b) {
  return hn::Min(a, b);
}

/// a > b ? a : b, which is b where one of them is a NaN or both are zeros.
template <class V>
HWY_INLINE V greater(V a, V b) {
  return hn::Max(a, b);
}

/// Numbers with a significand of 64 bits.
using ExtendedFloat = long double;
static_assert(std::numeric_limits<ExtendedFloat>::digits == 64);

/// Values are those of the field in MXCSR.
enum class Rounding : unsigned {
  nearest = _MM_ROUND_NEAREST,  // ties to even
  towardZero = _MM_ROUND_TOWARD_ZERO,
};

/// The control word of lanes and SSE scalars: rounding, the exceptions that end the program, the flags of those met.
struct FloatControl {
  unsigned word;

  static FloatControl current() { return {_mm_getcsr()}; }
  void set() const { _mm_setcsr(word); }
  bool operator==(const FloatControl&) const = default;

  bool roundsToNearest() const { return (word & _MM_ROUND_MASK) == _MM_ROUND_NEAREST; }
  bool metInvalid() const { return (word & _MM_EXCEPT_INVALID) != 0; }

  /// Another rounding, under which no exception ends the program, and nothing invalid met so far.
  FloatControl with(Rounding rounding) const {
    constexpr unsigned changed = _MM_ROUND_MASK | _MM_EXCEPT_INVALID;
    return {(word & ~changed) | _MM_MASK_MASK | static_cast<unsigned>(rounding)};
  }
};

}  // namespace vemi
