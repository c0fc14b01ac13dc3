// Functions of a byte in lanes, by a table of all 256 results.
#pragma once

#include <algorithm>
#include <cstdint>

#include "core/lanes.h"
#include "core/map_row.h"
#include "core/processor_bytes.h"

namespace vemi {

/// The lower half of a byte finds an entry in each of sixteen rows. Then the bits of the upper half choose among them,
/// one bit in each round. Or, where looksUpByLowerBits, each row holds what distinguishes it from the row ahead of it,
/// and a byte takes part in all rows up to its own: its index is negative from there on. Rows 0 and 8 begin anew.
class ByteTable {
 public:
  ByteTable() = default;
  constexpr ByteTable(const uint8_t (&result)[256]) : entry_() {
    for (int i = 0; i < 256; ++i) {
      entry_[i] = result[i];
      if (looksUpByLowerBits && i % 128 >= 16) entry_[i] ^= result[i - 16];
    }
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    if constexpr (looksUpByLowerBits) {
      const hn::RebindToSigned<D> di;
      V low = v, high = hn::Xor(v, hn::Set(d, 128)), ofLow = hn::Zero(d), ofHigh = hn::Zero(d);
      // Of bits as floats: the differences of integers GCC would combine in pairs, for which registers do not suffice.
      const auto changed = [&](V found, const uint8_t* differences, V index) HWY_ATTR {
        const hn::Repartition<float, D> df;
        const V row = hn::TableLookupBytesOr0(hn::LoadDup128(d, differences), index);
        return hn::BitCast(d, hn::Xor(hn::BitCast(df, found), hn::BitCast(df, row)));
      };
      const auto next = [&](V index) HWY_ATTR {
        return hn::BitCast(d, hn::SaturatedSub(hn::BitCast(di, index), hn::Set(di, 16)));
      };
      unrolled<8>([&](auto row) HWY_ATTR {
        ofLow = changed(ofLow, entry_ + 16 * row, low);
        ofHigh = changed(ofHigh, entry_ + 128 + 16 * row, high);
        low = next(low);
        high = next(high);
      });
      return hn::Xor(ofLow, ofHigh);
    } else {
      const V lowerHalf = hn::And(v, hn::Set(d, 15));
      V found[16];
      unrolled<16>([&](auto row) HWY_ATTR {
        found[row] = hn::TableLookupBytes(hn::LoadDup128(d, entry_ + 16 * row), lowerHalf);
      });
      unrolled<4>([&](auto round) HWY_ATTR {
        const auto isSet = hn::TestBit(v, hn::Set(d, 16 << round));
        unrolled<(8 >> round)>([&](auto i)
                                   HWY_ATTR { found[i] = hn::IfThenElse(isSet, found[2 * i + 1], found[2 * i]); });
      });
      return found[0];
    }
  }

 private:
  alignas(16) uint8_t entry_[256];
};

/// What op gives in lanes of T, which has 16 bits, of all bytes, saturated to bytes.
template <class T, class Op>
void fillBytes(const Op& op, uint8_t (&result)[256]) {
  T value[256];
  for (int i = 0; i < 256; ++i) value[i] = static_cast<T>(i);
  mapElements<Alpha::none>(256, eachVector(op), value, static_cast<const T*>(value));
  for (int i = 0; i < 256; ++i) result[i] = static_cast<uint8_t>(std::clamp<int>(value[i], 0, 255));
}

}  // namespace vemi
