// Functions of a byte in lanes, by a table of all 256 results.
#pragma once

#include <algorithm>
#include <cstdint>

#include "core/lanes.h"
#include "core/map_row.h"

namespace vemi {

/// A byte whose upper half is h is found in the h-th sixteen entries. For each of them the bytes are moved so that its
/// own end up in 0x70..0x7f and all others at 0x80 and above, which the lookup answers with zero.
struct ByteTable {
  alignas(16) uint8_t entry[256];

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    V result = hn::Zero(d);
    V moved = v;
    unrolled<16>([&](auto h) HWY_ATTR {
      const V index = hn::SaturatedAdd(moved, hn::Set(d, 0x70));
      result = hn::Or(result, hn::TableLookupBytesOr0(hn::LoadDup128(d, entry + 16 * h), index));
      moved = hn::Sub(moved, hn::Set(d, 16));
    });
    return result;
  }
};

/// The table of what op gives in lanes of T, which has 16 bits, limited to a byte.
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
