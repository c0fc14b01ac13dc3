// Looking through a row for something worth a warning.
#pragma once

#include "core/blocks.h"

namespace vemi {

/// True where test(d, lanes), a mask, holds for one of `count` elements.
template <class T, class Test>
HWY_NOINLINE bool anyElement(ptrdiff_t count, const Test& test, const T* src) {
  const Lanes<T> d;
  constexpr ptrdiff_t N = laneCount<T>;
  constexpr int vectors = 4;
  auto found = hn::Zero(d);
  const auto kernel = [&](const T* in) HWY_ATTR {
    unrolled<vectors>([&](auto k)
                          HWY_ATTR { found = hn::Or(found, hn::VecFromMask(d, test(d, hn::LoadU(d, in + k * N)))); });
  };
  forBlocks<vectors * N>(count, kernel, Strand<const T>{src});
  return !hn::AllFalse(d, hn::MaskFromVec(found));
}

struct IsZero {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v) const {
    return hn::Eq(v, hn::Zero(d));
  }
};

struct IsNegative {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v) const {
    return hn::Lt(v, hn::Zero(d));
  }
};

}  // namespace vemi
