// The product of two 16-bit values that stand for fractions of the full scale.
#pragma once

#include "core/lanes.h"

namespace vemi {

/// floor(t / 65535) with t = a b, which is (t + 1 + (t >> 16)) >> 16: the upper half of t, and one more where the sum
/// of its halves reaches 65535, which is the top bit of their average, rounded up.
template <class V>
HWY_INLINE V fullScaleProduct16(V a, V b) {
  const V upper = hn::MulHigh(a, b);
  return hn::Add(upper, hn::ShiftRight<15>(hn::AverageRound(hn::Mul(a, b), upper)));
}

}  // namespace vemi
