// Vectors as blocks of 16 bytes: put together from here and there, and several of them stored by turns.
#pragma once

#include "core/lanes.h"
#include "core/streaming.h"

namespace vemi {

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

/// Block 0 of each vector, then block 1 of each, and so on. Streamed, `out` is aligned to 16 bytes.
template <Stores how, class D, class... V>
HWY_INLINE void storeBlocksByTurns(D d, hn::TFromD<D>* out, V... v) {
  if constexpr (hn::MaxLanes(d) * sizeof(hn::TFromD<D>) == 16) {
    const auto store = [&](auto block) HWY_ATTR {
      if constexpr (how == Stores::streamed) {
        hn::Stream(block, d, out);
      } else {
        hn::StoreU(block, d, out);
      }
      out += hn::MaxLanes(d);
    };
    (store(v), ...);
  } else {
    const hn::Half<D> dHalf;
    storeBlocksByTurns<how>(dHalf, out, hn::LowerHalf(v)...);
    storeBlocksByTurns<how>(dHalf, out + sizeof...(V) * hn::MaxLanes(dHalf), hn::UpperHalf(dHalf, v)...);
  }
}

}  // namespace vemi
