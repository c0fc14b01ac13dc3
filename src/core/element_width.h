// Between memory of one element width and lanes of another: narrow elements as wide lanes, and wide lanes packed so
// that they stand in the order of memory.
#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#include "core/lanes.h"

namespace vemi {

/// Elements of a narrower integer type as lanes of D, with the same values.
template <class D, class S>
HWY_INLINE hn::Vec<D> loadExtended(D d, const S* in) {
  if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
    return hn::ConvertTo(d, loadExtended(hn::RebindToSigned<D>(), in));
  } else {
    return hn::PromoteTo(d, hn::LoadU(hn::Rebind<S, D>(), in));
  }
}

namespace detail {

/// The lane library has no names for these instructions. The vectors are the halves of each 128-bit block.
template <class V>
HWY_INLINE auto packSignedBytes(V lower, V upper) {
  if constexpr (sizeof(V) == 16) return _mm_packs_epi16(lower.raw, upper.raw);
#if HWY_TARGET <= HWY_AVX2
  if constexpr (sizeof(V) == 32) return _mm256_packs_epi16(lower.raw, upper.raw);
#endif
#if HWY_TARGET <= HWY_AVX3
  if constexpr (sizeof(V) == 64) return _mm512_packs_epi16(lower.raw, upper.raw);
#endif
}

template <class V>
HWY_INLINE auto packUnsigned16(V lower, V upper) {
#if HWY_TARGET == HWY_SSSE3  // packs to 16s alone: lanes from 0 on are moved down to its range, and back when packed
  const hn::DFromV<V> d;
  const V middle = hn::Set(d, 32768);
  const auto moved = [&](V v) HWY_ATTR { return hn::Sub(hn::AndNot(hn::BroadcastSignBit(v), v), middle); };
  return _mm_xor_si128(_mm_packs_epi32(moved(lower).raw, moved(upper).raw), _mm_set1_epi16(INT16_MIN));
#else
  if constexpr (sizeof(V) == 16) return _mm_packus_epi32(lower.raw, upper.raw);
#endif
#if HWY_TARGET <= HWY_AVX2
  if constexpr (sizeof(V) == 32) return _mm256_packus_epi32(lower.raw, upper.raw);
#endif
#if HWY_TARGET <= HWY_AVX3
  if constexpr (sizeof(V) == 64) return _mm512_packus_epi32(lower.raw, upper.raw);
#endif
}

/// Saturates signed lanes to half their width. The vectors are the halves of each 128-bit block.
template <class D, class V, class T = hn::TFromD<D>>
HWY_INLINE hn::Vec<D> pack(D d, V lower, V upper) {
  if constexpr (std::is_same_v<T, int16_t>) return hn::ReorderDemote2To(d, lower, upper);
  if constexpr (std::is_same_v<T, uint16_t>) return hn::Vec<D>{packUnsigned16(lower, upper)};
  if constexpr (std::is_same_v<T, int8_t>) return hn::Vec<D>{packSignedBytes(lower, upper)};
  if constexpr (std::is_same_v<T, uint8_t>) return vemi::packBytes(d, lower, upper);
}

/// Where the 32 bits of each place are after `vectors` vectors were packed to one.
template <int vectors>
struct PackedOrder {
  alignas(laneAlignment) uint32_t index[laneCount<uint32_t>];

  constexpr PackedOrder() : index() {
    constexpr int blocks = static_cast<int>(laneCount<uint32_t> / 4), words = 4 / vectors;
    for (int i = 0; i < 4 * blocks; ++i) {
      const int run = i / words, vector = run / blocks, block = run % blocks;
      index[i] = static_cast<uint32_t>((block * vectors + vector) * words + i % words);
    }
  }
};

template <int vectors>
inline constexpr PackedOrder<vectors> packedOrder;

template <int vectors, class D, class V>
HWY_INLINE V inOrder(D d, V packed) {
  if constexpr (sizeof packed.raw == 16) return packed;
  const Lanes<uint32_t> dWords;
  const auto order = hn::SetTableIndices(dWords, packedOrder<vectors>.index);
  return hn::BitCast(d, hn::TableLookupLanes(hn::BitCast(dWords, packed), order));
}

}  // namespace detail

/// Saturates two or four vectors of signed lanes to one of D, in their order.
template <class D, class V>
HWY_INLINE hn::Vec<D> packInOrder(D d, V v0, V v1) {
  return detail::inOrder<2>(d, detail::pack(d, v0, v1));
}

template <class D, class V>
HWY_INLINE hn::Vec<D> packInOrder(D d, V v0, V v1, V v2, V v3) {
  const hn::Repartition<int16_t, D> dHalf;
  return detail::inOrder<4>(d, detail::pack(d, detail::pack(dHalf, v0, v1), detail::pack(dHalf, v2, v3)));
}

/// packInOrder(d, f(0), f(1), ...) of as many vectors of S as one of D takes.
template <class S, class D, class F>
HWY_INLINE hn::Vec<D> packEach(D d, const F& f) {
  return [&]<int... k>(std::integer_sequence<int, k...>) HWY_ATTR {
    return packInOrder(d, f(std::integral_constant<int, k>())...);
  }
  (std::make_integer_sequence<int, sizeof(S) / sizeof(hn::TFromD<D>)>());
}

}  // namespace vemi
