// Between memory of one element width and lanes of another: narrow elements as wide lanes, and wide lanes packed so
// that they stand in the order of memory.
#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#include "core/processor.h"

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
  return detail::inOrder<2>(d, packHalves(d, v0, v1));
}

template <class D, class V>
HWY_INLINE hn::Vec<D> packInOrder(D d, V v0, V v1, V v2, V v3) {
  const hn::Repartition<int16_t, D> dHalf;
  return detail::inOrder<4>(d, packHalves(d, packHalves(dHalf, v0, v1), packHalves(dHalf, v2, v3)));
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
