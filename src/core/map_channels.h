// Regions whose channels have an operation each.
#pragma once

#include "core/image.h"
#include "core/interleave.h"
#include "core/map_region.h"

namespace vemi {

/// One for each channel that is worked on.
template <class Op, int channels>
struct PerChannel {
  Op of[channels];
};

namespace detail {

/// destination = op.of[channel](source), `width` pixels of three or four elements.
template <class L, class T, class Op>
HWY_NOINLINE void mapChannelsRow(ptrdiff_t width, const PerChannel<Op, L::channels>& ops, T* dst, const T* src) {
  const PerChannel<Op, L::channels> op = ops;  // a local, which no store to the destination can change
  const Lanes<T> d;
  constexpr int E = L::elements;
  const auto results = [&](T* out, auto c0, auto c1, auto c2, auto... c3)
                           HWY_ATTR { storePixels(d, out, op.of[0](d, c0), op.of[1](d, c1), op.of[2](d, c2), c3...); };
  if constexpr (L::keepsAlpha) {
    const auto kernel = [&](T* out, const T* old, const T* in) HWY_ATTR {
      withChannels<E>(d, old, [&](auto, auto, auto, auto alpha) HWY_ATTR {
        withChannels<E>(d, in, [&](auto c0, auto c1, auto c2, auto) HWY_ATTR { results(out, c0, c1, c2, alpha); });
      });
    };
    forBlocks<laneCount<T>>(width, kernel, Strand<T, E>{dst}, Strand<const T, E>{dst}, Strand<const T, E>{src});
  } else {
    const auto kernel = [&](T* out, const T* in) HWY_ATTR {
      withChannels<E>(d, in, [&](auto c0, auto c1, auto c2, auto... c3) HWY_ATTR {
        results(out, c0, c1, c2, op.of[E - 1](d, c3)...);
      });
    };
    forBlocks<laneCount<T>>(width, kernel, Strand<T, E>{dst}, Strand<const T, E>{src});
  }
}

}  // namespace detail

/// destination = op.of[channel](source), in the calling thread.
template <class L, class T, class Op>
void mapChannels(VemiSize roiSize, const PerChannel<Op, L::channels>& op, Image<T> dst, Image<const T> src) {
  if constexpr (L::elements == 1) {
    mapRegion<L>(CallerRows(), roiSize, eachVector(op.of[0]), dst, src);
  } else {
    const Extent extent = mergedExtent(roiSize, isContiguous<L>(dst, roiSize) && isContiguous<L>(src, roiSize));
    for (ptrdiff_t y = 0; y < extent.height; ++y) detail::mapChannelsRow<L>(extent.width, op, dst.row(y), src.row(y));
  }
}

}  // namespace vemi
