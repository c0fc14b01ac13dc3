// CIE XYZ of linear RGB with the primaries of ITU-R BT.709 and white D65, in floats: sums from left to right.
#pragma once

#include <tuple>

#include "core/inlined.h"
#include "core/lanes.h"
#include "core/processor.h"

namespace vemi::color {

template <class D, class V>
HWY_INLINE V weightedSum(D d, float weight0, V v0, float weight1, V v1, float weight2, V v2) {
  const auto times = [&](float weight, V v) VEMI_INLINED { return hn::Mul(hn::Set(d, weight), v); };
  return hn::Add(hn::Add(times(weight0, v0), times(weight1, v1)), times(weight2, v2));
}

template <class D, class V>
HWY_INLINE auto xyzOf(D d, V r, V g, V b) {
  return std::tuple(weightedSum(d, 0.412453f, r, 0.35758f, g, 0.180423f, b),
                    weightedSum(d, 0.212671f, r, 0.71516f, g, 0.072169f, b),
                    weightedSum(d, 0.019334f, r, 0.119193f, g, 0.950227f, b));
}

template <class D, class V>
HWY_INLINE auto rgbOfXyz(D d, V x, V y, V z) {
  return std::tuple(weightedSum(d, 3.240479f, x, -1.53715f, y, -0.498535f, z),
                    weightedSum(d, -0.969256f, x, 1.875991f, y, 0.041556f, z),
                    weightedSum(d, 0.055648f, x, -0.204043f, y, 1.057311f, z));
}

/// Floats from 0 to 1; a NaN becomes 0.
template <class D, class V>
HWY_INLINE V limitedToOne(D d, V v) {
  return lesser(greater(v, hn::Zero(d)), hn::Set(d, 1.0f));
}

}  // namespace vemi::color
