// Arithmetic in lanes of twice the width whose results fit the narrow ones again.
#pragma once

#include <limits>

#include "core/lanes.h"

namespace vemi {

/// Lanes 0, 2, 4, ... of an unsigned vector in lanes of twice the width, and lanes 1, 3, 5, ...
template <class V, class DW = hn::RepartitionToWide<hn::DFromV<V>>>
HWY_INLINE Widened<hn::Vec<DW>> evenAndOdd(V v) {
  using T = hn::TFromV<V>;
  const DW dWide;
  const auto wide = hn::BitCast(dWide, v);
  return {hn::And(wide, hn::Set(dWide, std::numeric_limits<T>::max())), hn::ShiftRight<8 * sizeof(T)>(wide)};
}

/// f(wide tag, wide lanes...) of all lanes of unsigned vectors: of the even ones, then of the odd ones, which takes
/// neither unpacking nor packing. What f gives goes back to the place of its lane.
template <class D, class F, class... V>
HWY_INLINE hn::Vec<D> inWideLanes(D d, const F& f, V... v) {
  const hn::RepartitionToWide<D> dWide;
  constexpr int bits = 8 * sizeof(hn::TFromD<D>);
  const auto even = f(dWide, evenAndOdd(v).lower...);
  const auto odd = f(dWide, evenAndOdd(v).upper...);
  return hn::BitCast(d, hn::Or(even, hn::ShiftLeft<bits>(odd)));
}

/// f(half of each vector) of the lower and of the upper halves, put together to lanes of `d`: for lanes that are
/// promoted on the way, which only fits halves.
template <class D, class F, class... V>
HWY_INLINE hn::Vec<D> inHalves(D d, const F& f, V... v) {
  return hn::Combine(d, f(hn::UpperHalf(hn::Half<hn::DFromV<V>>(), v)...),
                     f(hn::LowerHalf(hn::Half<hn::DFromV<V>>(), v)...));
}

}  // namespace vemi
