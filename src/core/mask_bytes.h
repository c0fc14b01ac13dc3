// Masks of elements as bytes: what a comparison of images writes. A mask is a vector whose lanes have all bits set or
// none.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/lane_width.h"
#include "core/lanes.h"
#include "core/pixels.h"

namespace vemi {

/// Masks of bytes, or of as many vectors of wider elements as an element has bytes, in one vector of bytes.
template <class V, class... More>
HWY_INLINE auto maskBytes(V v, More... more) {
  const Lanes<uint8_t> d;
  static_assert(sizeof(hn::TFromV<V>) == 1 + sizeof...(More));
  if constexpr (sizeof...(More) == 0) {
    return hn::BitCast(d, v);
  } else {
    const hn::RebindToSigned<hn::DFromV<V>> dSigned;
    return hn::BitCast(d, packInOrder(Lanes<int8_t>(), hn::BitCast(dSigned, v), hn::BitCast(dSigned, more)...));
  }
}

/// Byte masks of interleaved pixels, `elements` vectors of them, to one byte for each pixel: set where all channels
/// are. The bits of a four-channel pixel that are set in `ignored` count as set.
template <int elements, class V>
HWY_INLINE V allChannels(Vectors<V, elements> masks, [[maybe_unused]] uint32_t ignored) {
  const Lanes<uint8_t> d;
  if constexpr (elements == 1) return masks.v[0];
  if constexpr (elements == 3) {
    alignas(laneAlignment) uint8_t pixels[3 * laneCount<uint8_t>];
    unrolled<3>([&](auto k) HWY_ATTR { hn::Store(masks.v[k], d, pixels + k * laneCount<uint8_t>); });
    return loadChannels<3>(d, pixels, [](auto c0, auto c1, auto c2) HWY_ATTR { return hn::And(hn::And(c0, c1), c2); });
  }
  if constexpr (elements == 4) {
    const Lanes<uint32_t> dPixels;
    const auto ofPixels = [&](V v) HWY_ATTR {
      const auto pixels = hn::Or(hn::BitCast(dPixels, v), hn::Set(dPixels, ignored));
      return hn::VecFromMask(dPixels, hn::Eq(pixels, hn::Set(dPixels, 0xffffffffu)));
    };
    return maskBytes(ofPixels(masks.v[0]), ofPixels(masks.v[1]), ofPixels(masks.v[2]), ofPixels(masks.v[3]));
  }
}

}  // namespace vemi
