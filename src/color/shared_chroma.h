// Bytes of pixels in 16-bit lanes, apart by even and odd pixels: so the lanes of chroma that two pixels share are those
// of either.
#pragma once

#include <tuple>

#include "core/inlined.h"
#include "core/lane_width.h"
#include "core/lanes.h"

namespace vemi::color {

template <class D>
using Words = hn::RebindToSigned<hn::RepartitionToWide<D>>;

/// The bytes of a channel at the pixels of `d`: their own, or those that groups of two or of four pixels share.
template <class D, class V>
HWY_INLINE Widened<hn::Vec<Words<D>>> wordsOfPixels(D d, V channel) {
  constexpr size_t shared = hn::MaxLanes(d) / hn::MaxLanes(hn::DFromV<V>());
  static_assert(shared == 1 || shared == 2 || shared == 4);
  const Words<D> dWords;
  if constexpr (shared == 1) {
    const auto words = evenAndOdd(channel);
    return {hn::BitCast(dWords, words.lower), hn::BitCast(dWords, words.upper)};
  } else if constexpr (shared == 2) {
    const auto words = hn::PromoteTo(dWords, channel);
    return {words, words};
  } else {
    const hn::Repartition<uint32_t, D> dGroups;
    const auto groups = hn::PromoteTo(dGroups, channel);
    const auto words = hn::BitCast(dWords, hn::Or(groups, hn::ShiftLeft<16>(groups)));
    return {words, words};
  }
}

namespace detail {

alignas(16) inline constexpr uint8_t evenBesideOdd[16] = {0, 8, 1, 9, 2, 10, 3, 11, 4, 12, 5, 13, 6, 14, 7, 15};

}  // namespace detail

/// The inverse, limited to bytes.
template <class D, class V>
HWY_INLINE hn::Vec<D> bytesOfPixels(D d, V even, V odd) {
  static_assert(hn::MaxLanes(d) >= 16, "whole vectors alone");
  return hn::TableLookupBytes(packHalves(d, even, odd), hn::LoadDup128(d, detail::evenBesideOdd));
}

/// The bytes of several channels, of which words are given.
template <class D, int channels>
struct PixelWords {
  Vectors<hn::Vec<Words<D>>, channels> even, odd;

  HWY_INLINE auto bytes(D d) const {
    return [&]<size_t... c>(std::index_sequence<c...>) VEMI_INLINED {
      return std::tuple(bytesOfPixels(d, even.v[c], odd.v[c])...);
    }
    (std::make_index_sequence<channels>());
  }
};

/// The bytes of f(words of each channel...), a vector for each of three channels, which is given even pixels and odd
/// ones.
template <class D, class F, class... V>
HWY_INLINE auto bytesByWords(D d, const F& f, V... channel) {
  const auto ofWords = [&](auto... words) VEMI_INLINED {
    return PixelWords<D, 3>{f(words.lower...), f(words.upper...)}.bytes(d);
  };
  return ofWords(wordsOfPixels(d, channel)...);
}

/// luma... and both words of chroma that two pixels share, these as bytes, in one tuple.
template <class D, class V, class... Luma>
HWY_INLINE auto withChromaBytes(D d, V first, V second, Luma... luma) {
  const hn::Half<D> dHalf;
  const auto both = packInOrder(d, first, second);
  return std::tuple(luma..., hn::LowerHalf(both), hn::UpperHalf(dHalf, both));
}

}  // namespace vemi::color
