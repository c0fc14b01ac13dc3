// Rows of grey pixels: one value for all worked channels of each.
#pragma once

#include <cstddef>

#include "core/blocks.h"
#include "core/interleave.h"
#include "core/lanes.h"
#include "core/rows.h"

namespace vemi::generate {

/// Patterns are computed in pieces of a row, which stay in the first cache until they are written.
inline constexpr ptrdiff_t greyPiece = 512;

/// A piece of a row, one value a pixel. Kernels may write a vector more than its pixels.
template <class T>
struct GreyPiece {
  alignas(laneAlignment) T value[greyPiece + laneCount<float>];
};

template <class L, class T>
void writeGrey(ptrdiff_t width, const T* values, T* row) {
  if constexpr (L::elements == 1) {
    rowCopyBytes(values, row, width * ptrdiff_t{sizeof(T)});
  } else {
    const Lanes<T> d;
    const auto kernel = [&](const T* in, [[maybe_unused]] const T* old, T* out) HWY_ATTR {
      const auto v = hn::LoadU(d, in);
      if constexpr (L::keepsAlpha) {
        withChannels<4>(d, old, [&](auto, auto, auto, auto alpha) HWY_ATTR { storePixels(d, out, v, v, v, alpha); });
      } else if constexpr (L::elements == 3) {
        storePixels(d, out, v, v, v);
      } else {
        storePixels(d, out, v, v, v, v);
      }
    };
    constexpr int E = L::elements;
    forBlocks<laneCount<T>>(width, kernel, Strand<const T>{values}, Strand<const T, E>{row}, Strand<T, E>{row});
  }
}

}  // namespace vemi::generate
