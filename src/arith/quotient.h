// What real and complex quotients share.
#pragma once

#include <algorithm>

#include "core/lanes.h"
#include "core/numbers.h"

namespace vemi::arith {

/// The test that warns. A complex element is zero as a whole.
struct DividesByZero {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V, V divisor) const {
    return hn::Eq(divisor, hn::Zero(d));
  }
};

/// 2^-scaleFactor, as far as it makes a difference: beyond 2^64 all quotients but zero saturate, and below 2^-64 none
/// is left. Where it has an effect, a scale is exact.
template <class Float>
Float quotientScale(int scaleFactor) {
  return powerOfTwo<Float>(-std::clamp(scaleFactor, -64, 64));
}

}  // namespace vemi::arith
