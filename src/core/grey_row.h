// Rows of grey pixels: one value for all worked channels of each.
#pragma once

#include <cstddef>

#include "core/lanes.h"
#include "core/pixels.h"
#include "core/rows.h"

namespace vemi {

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
    mapPixels(width, RepeatedChannel<L::channels>(), pixelRow<L>(row), planeRow(values));
  }
}

}  // namespace vemi
