// Arithmetic in lanes of twice the width whose results fit the narrow ones again.
#pragma once

#include <limits>

#include "core/lanes.h"

namespace vemi {

/// f(wide tag, wide lanes...) of all lanes of unsigned vectors: of the even ones, then of the odd ones, which takes
/// neither unpacking nor packing. What f gives goes back to the place of its lane.
template <class D, class F, class... V>
HWY_INLINE hn::Vec<D> inWideLanes(D d, const F& f, V... v) {
  const hn::RepartitionToWide<D> dWide;
  constexpr int bits = 8 * sizeof(hn::TFromD<D>);
  const auto lower = hn::Set(dWide, std::numeric_limits<hn::TFromD<D>>::max());
  const auto even = f(dWide, hn::And(hn::BitCast(dWide, v), lower)...);
  const auto odd = f(dWide, hn::ShiftRight<bits>(hn::BitCast(dWide, v))...);
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
