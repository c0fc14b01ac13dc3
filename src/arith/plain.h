// Sums, differences and products of lanes as the processor forms them.
#pragma once

#include "core/lanes.h"

namespace vemi::arith {

struct PlainSum {
  template <class D, class V>
  HWY_INLINE V operator()(D, V a, V b) const {
    return hn::Add(a, b);
  }
};

struct PlainDifference {
  template <class D, class V>
  HWY_INLINE V operator()(D, V a, V b) const {
    return hn::Sub(a, b);
  }
};

struct PlainProduct {
  template <class D, class V>
  HWY_INLINE V operator()(D, V a, V b) const {
    return hn::Mul(a, b);
  }
};

}  // namespace vemi::arith
