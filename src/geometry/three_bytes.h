// Pixels of three and four elements of T out of lanes of four of them.
#pragma once

#include <array>
#include <cstdint>

#include "core/lanes.h"
#include "core/layout.h"

namespace vemi::geometry {

/// A vector of pixels of four elements, without the fourth ones.
template <class T = uint8_t>
HWY_INLINE void storeWithoutFourth(hn::Vec<Lanes<uint8_t>> pixels, uint8_t* out) {
  alignas(16) static constexpr auto colours = [] {
    constexpr size_t size = sizeof(T);
    std::array<uint8_t, 16> index = {};
    for (size_t i = 0; i < 12; ++i) index[i] = static_cast<uint8_t>(i / (3 * size) * 4 * size + i % (3 * size));
    return index;
  }();
  static constexpr auto close = [] {
    std::array<int32_t, laneCount<int32_t>> index = {};
    for (size_t i = 0; i < index.size() / 4 * 3; ++i) index[i] = static_cast<int32_t>(i / 3 * 4 + i % 3);
    return index;
  }();
  const Lanes<uint8_t> d;
  const Lanes<int32_t> di;
  auto three = hn::BitCast(di, hn::TableLookupBytes(pixels, hn::LoadDup128(d, colours.data())));
  if constexpr (hn::MaxLanes(d) > 16) {
    three = hn::TableLookupLanes(three, hn::SetTableIndices(di, close.data()));
  }
  const hn::Half<Lanes<uint8_t>> dHalf;
  const hn::Half<decltype(dHalf)> dQuarter;
  const auto bytes = hn::BitCast(d, three);
  hn::StoreU(hn::LowerHalf(dHalf, bytes), dHalf, out);
  hn::StoreU(hn::LowerHalf(dQuarter, hn::UpperHalf(dHalf, bytes)), dQuarter, out + laneCount<uint8_t> / 2);
}

/// A vector of pixels with a word each, in their layout.
template <class L>
HWY_INLINE void storePixels(hn::Vec<Lanes<uint8_t>> pixels, uint8_t* out) {
  const Lanes<uint8_t> d;
  if constexpr (L::elements == 3) {
    storeWithoutFourth(pixels, out);
  } else if constexpr (L::keepsAlpha) {
    const auto colours = hn::BitCast(d, hn::Set(Lanes<int32_t>(), 0xffffff));
    hn::StoreU(hn::IfVecThenElse(colours, pixels, hn::LoadU(d, out)), d, out);
  } else {
    hn::StoreU(pixels, d, out);
  }
}

}  // namespace vemi::geometry
