// What compositing and premultiplication share: products with an alpha, and the alpha channel of pixels in lanes. An
// alpha is a fraction of its type's largest value, which stands for one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

#include "arith/full_scale.h"
#include "core/lanes.h"

namespace vemi {

/// An alpha in each lane, made ready to be a factor. Of bytes, each twice: those of the even lanes, and those of the
/// odd ones. Wider lanes stand in `odd` alone.
template <class V>
struct Fraction {
  V even, odd;
};

template <class D, class V>
HWY_INLINE Fraction<V> fraction(D d, V alpha) {
  if constexpr (sizeof(hn::TFromD<D>) > 1) {
    return {alpha, alpha};
  } else {
    const hn::RepartitionToWide<D> dWide;
    const auto pairs = hn::BitCast(dWide, alpha);
    return {hn::OddEven(hn::BitCast(d, hn::ShiftLeft<8>(pairs)), alpha),
            hn::OddEven(alpha, hn::BitCast(d, hn::ShiftRight<8>(pairs)))};
  }
}

template <class V>
HWY_INLINE Fraction<V> operator^(Fraction<V> fraction, V mask) {
  return {hn::Xor(fraction.even, mask), hn::Xor(fraction.odd, mask)};
}

template <class D, class V>
HWY_INLINE Fraction<V> complement(D d, Fraction<V> fraction) {
  return fraction ^ hn::Set(d, std::numeric_limits<hn::TFromD<D>>::max());
}

/// floor(x alpha / 255) in the odd bytes, from x in the odd bytes and alpha in both of a pair. It is the upper byte of
/// (256 x + 1) (257 alpha) / 2^16; what the even bytes hold does not matter.
template <class D, class V>
HWY_INLINE V timesOdd8(D d, V x, V alpha) {
  const hn::RepartitionToWide<D> dWide;
  const V xAndOne = hn::OddEven(x, hn::Set(d, 1));
  return hn::BitCast(d, hn::MulHigh(hn::BitCast(dWide, xAndOne), hn::BitCast(dWide, alpha)));
}

/// x times one fraction after the other, each product rounded down by itself.
template <class D, class V, class... Factor>
HWY_INLINE V product(D d, V x, Factor... fraction) {
  if constexpr (sizeof(hn::TFromD<D>) > 1) {
    ((x = fullScaleProduct16(x, fraction.odd)), ...);
    return x;
  } else {
    const hn::RepartitionToWide<D> dWide;
    V even = hn::BitCast(d, hn::ShiftLeft<8>(hn::BitCast(dWide, x)));
    ((even = timesOdd8(d, even, fraction.even)), ...);
    ((x = timesOdd8(d, x, fraction.odd)), ...);
    return hn::OddEven(x, hn::BitCast(d, hn::ShiftRight<8>(hn::BitCast(dWide, even))));
  }
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
HWY_INLINE Fraction<V> alphaOfPixels(D d, V pixels) {
  const hn::Repartition<uint8_t, D> dBytes;
  const auto index = hn::LoadDup128(dBytes, detail::alphaBytes<hn::TFromD<D>>.index);
  const V alpha = hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(dBytes, pixels), index));
  return {alpha, alpha};
}

/// The same with one in place of the alpha for the alpha channel, which is not to be multiplied.
template <class D, class V>
HWY_INLINE Fraction<V> forColours(D d, Fraction<V> alpha, V alphaLanes) {
  return {alpha.even, hn::Or(alpha.odd, fraction(d, alphaLanes).odd)};
}

}  // namespace vemi
