// Masks of elements as bytes: what a comparison of images writes. A mask is a vector whose lanes have all bits set or
// none.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/interleave.h"
#include "core/lanes.h"

namespace vemi {

namespace detail {

/// Packing `vectors` vectors into one joins their first 128-bit blocks, then their second ones, and so on. This is
/// where each 32-bit unit of the row is found in that.
template <int vectors>
struct PackedOrder {
  alignas(laneAlignment) uint32_t index[laneCount<uint32_t>];

  constexpr PackedOrder() : index() {
    constexpr uint32_t count = laneCount<uint32_t>, blocks = count / 4, unit = 4 / vectors;
    for (uint32_t i = 0; i < count; ++i) {
      const uint32_t vector = i / (blocks * unit), block = i / unit % blocks;
      index[i] = block * 4 + vector * unit + i % unit;
    }
  }
};

template <int vectors>
inline constexpr PackedOrder<vectors> packedOrder;

/// Packed lanes of `vectors` vectors in the order of the row.
template <int vectors, class V>
HWY_INLINE auto inRowOrder(V packed) {
  const Lanes<uint32_t> dUnits;
  const auto units = hn::BitCast(dUnits, packed);
  if constexpr (laneCount<uint32_t> == 4) return units;
  return hn::TableLookupLanes(units, hn::SetTableIndices(dUnits, packedOrder<vectors>.index));
}

}  // namespace detail

/// Masks of bytes, or of as many vectors of wider elements as an element has bytes, in one vector of bytes.
template <class V>
HWY_INLINE auto maskBytes(V v) {
  static_assert(sizeof(hn::TFromV<V>) == 1);
  return hn::BitCast(Lanes<uint8_t>(), v);
}

template <class V>
HWY_INLINE auto maskBytes(V v0, V v1) {
  static_assert(sizeof(hn::TFromV<V>) == 2);
  return hn::BitCast(Lanes<uint8_t>(), detail::inRowOrder<2>(packMasks(v0, v1)));
}

template <class V>
HWY_INLINE auto maskBytes(V v0, V v1, V v2, V v3) {
  static_assert(sizeof(hn::TFromV<V>) == 4);
  const auto in16Bits = [](V lower, V upper) HWY_ATTR {
    const Lanes<int32_t> d32;
    return hn::ReorderDemote2To(Lanes<int16_t>(), hn::BitCast(d32, lower), hn::BitCast(d32, upper));
  };
  return hn::BitCast(Lanes<uint8_t>(), detail::inRowOrder<4>(packMasks(in16Bits(v0, v1), in16Bits(v2, v3))));
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
    return withChannels<3>(d, pixels, [](auto c0, auto c1, auto c2) HWY_ATTR { return hn::And(hn::And(c0, c1), c2); });
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
