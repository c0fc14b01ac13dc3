// Pixels of three bytes out of lanes of four.
#pragma once

#include <array>
#include <cstdint>

#include "core/lanes.h"

namespace vemi::geometry {

/// A vector of pixels with a word each, as three bytes each.
HWY_INLINE void storeWithoutFourth(hn::Vec<Lanes<uint8_t>> pixels, uint8_t* out) {
  alignas(16) static constexpr uint8_t colours[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14};
  static constexpr auto close = [] {
    std::array<int32_t, laneCount<int32_t>> index = {};
    for (size_t i = 0; i < index.size() / 4 * 3; ++i) index[i] = static_cast<int32_t>(i / 3 * 4 + i % 3);
    return index;
  }();
  const Lanes<uint8_t> d;
  const Lanes<int32_t> di;
  auto three = hn::BitCast(di, hn::TableLookupBytes(pixels, hn::LoadDup128(d, colours)));
  if constexpr (laneCount < uint8_t >> 16) {
    three = hn::TableLookupLanes(three, hn::SetTableIndices(di, close.data()));
  }
  const hn::Half<Lanes<uint8_t>> dHalf;
  const hn::Half<decltype(dHalf)> dQuarter;
  const auto bytes = hn::BitCast(d, three);
  hn::StoreU(hn::LowerHalf(dHalf, bytes), dHalf, out);
  hn::StoreU(hn::LowerHalf(dQuarter, hn::UpperHalf(dHalf, bytes)), dQuarter, out + laneCount<uint8_t> / 2);
}

}  // namespace vemi::geometry
