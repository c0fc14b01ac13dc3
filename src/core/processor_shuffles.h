// Lanes of 32 bits out of two vectors, within blocks of 128 bits: what the processor does at once, and the lane library
// in several moves.
#pragma once

#include "core/lanes.h"

namespace vemi {

#if HWY_ARCH_X86

namespace detail {

template <int order>
HWY_INLINE __m128 shuffle(__m128 a, __m128 b) {
  return _mm_shuffle_ps(a, b, order);
}
#if HWY_TARGET <= HWY_AVX2
template <int order>
HWY_INLINE __m256 shuffle(__m256 a, __m256 b) {
  return _mm256_shuffle_ps(a, b, order);
}
#endif
#if HWY_TARGET <= HWY_AVX3
template <int order>
HWY_INLINE __m512 shuffle(__m512 a, __m512 b) {
  return _mm512_shuffle_ps(a, b, order);
}
#endif

/// Of each block: lanes a0 and a1 of `a`, b0 and b1 of `b`, which are floats.
template <int a0, int a1, int b0, int b1, class V>
HWY_INLINE V lanesOfTwo(V a, V b) {
  return V{shuffle<a0 | a1 << 2 | b0 << 4 | b1 << 6>(a.raw, b.raw)};
}

}  // namespace detail

#endif

/// Of each block: the lower halves of the 64-bit lanes of `a`, and those of `b`.
template <class D, class V>
HWY_INLINE hn::Vec<D> lowerHalves(D d, V a, V b) {
#if HWY_ARCH_X86
  const hn::RebindToFloat<D> df;
  return hn::BitCast(d, detail::lanesOfTwo<0, 2, 0, 2>(hn::BitCast(df, a), hn::BitCast(df, b)));
#else
  return hn::ConcatEven(d, hn::BitCast(d, b), hn::BitCast(d, a));
#endif
}

}  // namespace vemi
