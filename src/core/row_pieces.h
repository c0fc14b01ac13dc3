// Rows cut into pieces that fit the first cache, one channel at a time, for kernels that know nothing of layouts.
#pragma once

#include <algorithm>
#include <cstddef>

#include "core/layout.h"
#include "core/pixels.h"

namespace vemi {

/// Calls f(channel, x, values, count) for each channel that is worked on, for pieces of at most `pieceLength` pixels:
/// `values` are those of the channel from column x on.
template <class L, ptrdiff_t pieceLength, class T, class F>
void forEachPiece(const T* row, ptrdiff_t width, const F& f) {
  for (ptrdiff_t x = 0; x < width; x += pieceLength) {
    const ptrdiff_t count = std::min(pieceLength, width - x);
    const T* const pixels = row + x * L::elements;
    if constexpr (L::elements == 1) {
      f(0, x, pixels, count);
    } else {
      alignas(laneAlignment) T plane[L::channels][pieceLength];
      PlaneRow<T, L::channels> planes;
      for (int channel = 0; channel < L::channels; ++channel) planes.first[channel] = plane[channel];
      movePixels(count, planes, pixelRow<L>(pixels));
      for (int channel = 0; channel < L::channels; ++channel) f(channel, x, plane[channel], count);
    }
  }
}

}  // namespace vemi
