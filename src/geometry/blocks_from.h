// Vectors put together from 16 bytes here and 16 bytes there.
#pragma once

#include "core/lanes.h"

namespace vemi::geometry {

/// The vector whose 16 bytes of block k begin at at(k).
template <class D, class At>
HWY_INLINE hn::Vec<D> blocksFrom(D d, const At& at) {
  constexpr int blocks = static_cast<int>(hn::MaxLanes(D()) * sizeof(hn::TFromD<D>) / 16);
  if constexpr (blocks == 1) {
    return hn::LoadU(d, at(0));
  } else {
    const hn::Half<D> dHalf;
    const auto upper = blocksFrom(dHalf, [&](int k) HWY_ATTR { return at(k + blocks / 2); });
    return hn::Combine(d, upper, blocksFrom(dHalf, at));
  }
}

}  // namespace vemi::geometry
