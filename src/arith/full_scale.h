// Products of values that stand for fractions of the full scale of their type, 255 or 65535, rounded down.
#pragma once

#include <cstdint>

#include "core/lanes.h"
#include "core/processor.h"

namespace vemi::arith {

/// A value in each lane, made ready to be a factor. Of bytes, each twice: those of the even lanes, and those of the odd
/// ones. Wider lanes stand in `odd` alone.
template <class V>
struct PreparedFactor {
  V even, odd;
};

template <class D, class V>
HWY_INLINE PreparedFactor<V> preparedFactor(D d, V v) {
  if constexpr (sizeof(hn::TFromD<D>) > 1) {
    return {v, v};
  } else {
    const V evenOfBlock = hn::And(hn::Iota(d, 0), hn::Set(d, 14));
    return {hn::TableLookupBytes(v, evenOfBlock), hn::TableLookupBytes(v, hn::Or(evenOfBlock, hn::Set(d, 1)))};
  }
}

/// floor(t / 65535) with t = a b, which is (t + 1 + (t >> 16)) >> 16: the upper half of t, and one more where the sum
/// of its halves reaches 65535, which is the top bit of their average, rounded up.
template <class V>
HWY_INLINE V fullScaleProduct16(V a, V b) {
  const V upper = hn::MulHigh(a, b);
  return hn::Add(upper, hn::ShiftRight<15>(hn::AverageRound(hn::Mul(a, b), upper)));
}

/// Of bytes: the odd ones over the even ones. Some processors take three steps to choose bytes by a mask.
template <class D, class V>
HWY_INLINE V oddOver(D d, V odd, V even) {
  const hn::RepartitionToWide<D> dWide;
  return hn::Or(hn::And(odd, hn::BitCast(d, hn::Set(dWide, 0xFF00))), even);
}

/// floor(x y / 255) in the odd bytes, from x in the odd bytes beside ones, and y in both of a pair. It is the upper
/// byte of (256 x + 1) (257 y) / 2^16.
template <class D, class V>
HWY_INLINE V timesOdd8(D d, V xAndOne, V y) {
  const hn::RepartitionToWide<D> dWide;
  return hn::BitCast(d, hn::MulHigh(hn::BitCast(dWide, xAndOne), hn::BitCast(dWide, y)));
}

/// x times one factor after the other, each product rounded down by itself.
template <class D, class V, class First, class... Factor>
HWY_INLINE V product(D d, V x, First first, Factor... factor) {
  if constexpr (sizeof(hn::TFromD<D>) > 1) {
    x = fullScaleProduct16(x, first.odd);
    ((x = fullScaleProduct16(x, factor.odd)), ...);
    return x;
  } else {
    const hn::RepartitionToWide<D> dWide;
    const V one = hn::BitCast(d, hn::Set(dWide, 1));
    V even = timesOdd8(d, hn::Or(hn::BitCast(d, hn::ShiftLeft<8>(hn::BitCast(dWide, x))), one), first.even);
    V odd = timesOdd8(d, oddOver(d, x, one), first.odd);
    ((even = timesOdd8(d, oddOver(d, even, one), factor.even)), ...);
    ((odd = timesOdd8(d, oddOver(d, odd, one), factor.odd)), ...);
    return oddOver(d, odd, hn::BitCast(d, hn::ShiftRight<8>(hn::BitCast(dWide, even))));
  }
}

/// The product of two values that are each used once: nothing is made ready.
template <class D, class V>
HWY_INLINE V productOfTwo(D d, V x, V y) {
  if constexpr (sizeof(hn::TFromD<D>) > 1) {
    return fullScaleProduct16(x, y);
  } else {
    const hn::RepartitionToWide<D> dWide;
    const V one = hn::Set(d, 1);
    const auto lower = hn::MulHigh(hn::BitCast(dWide, hn::InterleaveLower(d, one, x)),
                                   hn::BitCast(dWide, hn::InterleaveLower(d, y, y)));
    const auto upper = hn::MulHigh(hn::BitCast(dWide, hn::InterleaveUpper(d, one, x)),
                                   hn::BitCast(dWide, hn::InterleaveUpper(d, y, y)));
    const hn::RebindToSigned<decltype(dWide)> dSigned;
    return packHalves(d, hn::BitCast(dSigned, hn::ShiftRight<8>(lower)),
                      hn::BitCast(dSigned, hn::ShiftRight<8>(upper)));
  }
}

}  // namespace vemi::arith
