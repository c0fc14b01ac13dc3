// Bytes as the processor likes them. Pairs times weights of a byte: two products in a lane of 16 bits by one
// instruction, where it has that. How it looks up in tables of more than 16 bytes.
#pragma once

#include <cstdint>

#include "core/lanes.h"

namespace vemi {

#if HWY_ARCH_X86

namespace detail {

HWY_INLINE __m128i pairsOfByteProducts(__m128i a, __m128i b) { return _mm_maddubs_epi16(a, b); }
#if HWY_TARGET <= HWY_AVX2
HWY_INLINE __m256i pairsOfByteProducts(__m256i a, __m256i b) { return _mm256_maddubs_epi16(a, b); }
#endif
#if HWY_TARGET <= HWY_AVX3
HWY_INLINE __m512i pairsOfByteProducts(__m512i a, __m512i b) { return _mm512_maddubs_epi16(a, b); }
#endif

}  // namespace detail

#endif

/// Whether a look-up goes by the lower four bits of any index up to 127 and gives 0 above, while a choice by a mask
/// takes several instructions.
#if HWY_ARCH_X86 && HWY_TARGET >= HWY_AVX2
inline constexpr bool looksUpByLowerBits = true;
#else
inline constexpr bool looksUpByLowerBits = false;
#endif

/// Of the bytes of each lane of 16 bits: first lower + second upper. What leaves the lane is anything.
template <int first, int second, class D, class V>
HWY_INLINE hn::Vec<D> pairsOfByteProducts(D d, V bytes) {
  static_assert(first >= -128 && first < 128 && second >= -128 && second < 128);
#if HWY_ARCH_X86
  constexpr auto pair = static_cast<int16_t>((first & 255) | second * 256);
  return hn::Vec<D>{detail::pairsOfByteProducts(bytes.raw, hn::Set(d, pair).raw)};
#else
  const hn::RebindToUnsigned<D> du;
  const auto pairs = hn::BitCast(du, bytes);
  const auto lower = hn::BitCast(d, hn::And(pairs, hn::Set(du, uint16_t{255})));
  const auto upper = hn::BitCast(d, hn::ShiftRight<8>(pairs));
  return hn::Add(hn::Mul(lower, hn::Set(d, int16_t{first})), hn::Mul(upper, hn::Set(d, int16_t{second})));
#endif
}

}  // namespace vemi
