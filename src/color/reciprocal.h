// The approximate reciprocal by its definition in core/numbers.h, for lanes that need none of its special cases.
#pragma once

#include <cstdint>

#include "core/lanes.h"

namespace vemi::color {

/// Of zeros, and of normal floats whose reciprocal is a normal float; to nearest must be set. The middle of a float's
/// interval is its upper 12 bits and one more. A quotient of this numerator, the float below one, has the rounding of
/// the exact quotient to 13 bits in all 2048 intervals; a quotient of one has not.
template <class D, class V>
HWY_INLINE V plainReciprocal(D d, V x) {
  const hn::RebindToUnsigned<D> du;
  const auto cut = hn::And(hn::BitCast(du, x), hn::Set(du, 0xfffff000u));
  const auto middle = hn::BitCast(d, hn::Or(cut, hn::Set(du, 0x800u)));
  const auto quotient = hn::BitCast(du, hn::Div(hn::Set(d, 0x1.fffffep-1f), middle));
  return hn::BitCast(d, hn::And(hn::Add(quotient, hn::Set(du, 0x400u)), hn::Set(du, 0xfffff800u)));
}

/// The same after one Newton step: 2 r - x r r.
template <class D, class V>
HWY_INLINE V refinedReciprocal(D d, V x) {
  const V r = plainReciprocal(d, x);
  return hn::Sub(hn::Add(r, r), hn::Mul(hn::Mul(x, r), r));
}

}  // namespace vemi::color
