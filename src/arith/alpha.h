// What compositing and premultiplication share: the alpha channel of pixels in lanes, as fractions of the full scale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

#include "arith/full_scale.h"
#include "core/lanes.h"

namespace vemi::arith {

template <class V>
HWY_INLINE PreparedFactor<V> operator^(PreparedFactor<V> factor, V mask) {
  return {hn::Xor(factor.even, mask), hn::Xor(factor.odd, mask)};
}

template <class D, class V>
HWY_INLINE PreparedFactor<V> complement(D d, PreparedFactor<V> factor) {
  return factor ^ hn::Set(d, std::numeric_limits<hn::TFromD<D>>::max());
}

/// For withConstants: the alpha lanes of four-channel pixels.
template <class T>
inline constexpr T alphaLanes[4] = {0, 0, 0, std::numeric_limits<T>::max()};

namespace detail {

template <class T>
struct AlphaBytes {
  alignas(16) uint8_t index[16];

  constexpr AlphaBytes() : index() {
    constexpr size_t pixelSize = 4 * sizeof(T);
    for (size_t i = 0; i < 16; ++i) {
      index[i] = static_cast<uint8_t>(i / pixelSize * pixelSize + 3 * sizeof(T) + i % sizeof(T));
    }
  }
};

template <class T>
inline constexpr AlphaBytes<T> alphaBytes;

}  // namespace detail

/// The alpha of each four-channel pixel, for all of its channels.
template <class D, class V>
HWY_INLINE PreparedFactor<V> alphaOfPixels(D d, V pixels) {
  const hn::Repartition<uint8_t, D> dBytes;
  const auto index = hn::LoadDup128(dBytes, detail::alphaBytes<hn::TFromD<D>>.index);
  const V alpha = hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(dBytes, pixels), index));
  return {alpha, alpha};
}

/// The same with one in place of the alpha for the alpha channel, which is not to be multiplied.
template <class D, class V>
HWY_INLINE PreparedFactor<V> forColours(D d, PreparedFactor<V> alpha, V alphaLanes) {
  return {alpha.even, hn::Or(alpha.odd, preparedFactor(d, alphaLanes).odd)};
}

}  // namespace vemi::arith
