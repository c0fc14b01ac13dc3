// Functions of a byte in lanes, by a table of all 256 results.
#pragma once

#include <algorithm>
#include <cstdint>

#include "core/lanes.h"
#include "core/map_row.h"

namespace vemi {

/// The lower half of a byte finds an entry in each of sixteen rows; the bits of the upper half then choose among them,
/// one bit in each round.
struct ByteTable {
  alignas(16) uint8_t entry[256];

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const V lowerHalf = hn::And(v, hn::Set(d, 15));
    V found[16];
    unrolled<16>([&](auto row)
                     HWY_ATTR { found[row] = hn::TableLookupBytes(hn::LoadDup128(d, entry + 16 * row), lowerHalf); });
    unrolled<4>([&](auto round) HWY_ATTR {
      const auto isSet = hn::TestBit(v, hn::Set(d, 16 << round));
      unrolled<(8 >> round)>([&](auto i)
                                 HWY_ATTR { found[i] = hn::IfThenElse(isSet, found[2 * i + 1], found[2 * i]); });
    });
    return found[0];
  }
};

/// The table of what op gives in lanes of T, which has 16 bits, saturated to a byte.
template <class T, class Op>
ByteTable byteTableOf(const Op& op) {
  T value[256];
  for (int i = 0; i < 256; ++i) value[i] = static_cast<T>(i);
  mapElements<Alpha::none>(256, eachVector(op), value, static_cast<const T*>(value));
  ByteTable table;
  for (int i = 0; i < 256; ++i) table.entry[i] = static_cast<uint8_t>(std::clamp<int>(value[i], 0, 255));
  return table;
}

}  // namespace vemi
