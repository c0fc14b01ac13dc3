// Negative scale factors in lanes.
#pragma once

#include "core/numbers.h"

namespace vemi::arith {

/// For an operation that saturates: what saturates before the shift saturates after it.
template <class T, class Op>
struct ScaledUp {
  SaturatingShiftLeft<T> shiftLeft;

  explicit ScaledUp(int scaleFactor) : shiftLeft(scaleFactor < -32 ? 32 : -scaleFactor) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return shiftLeft(d, Op()(d, a, b));
  }
};

}  // namespace vemi::arith
