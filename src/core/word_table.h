// Functions of a 16-bit element by a table of all 65536 results. Such a table is too long for lanes.
#pragma once

#include <cstddef>
#include <limits>

#include "core/element.h"
#include "core/image.h"

namespace vemi {

inline constexpr int wordTableSize = 65536;

namespace detail {

/// The table begins with the result of the lowest value of T.
template <class T>
T lookedUp(const T* table, const T* place) {
  return table[elementOf(place) - std::numeric_limits<T>::min()];
}

}  // namespace detail

/// destination = table[channel][source], of as many tables as there are channels at least, in the calling thread. A
/// source may be the destination.
template <class L, class T, int tables>
void mapByWordTables(VemiSize roiSize, const T* const (&table)[tables], Image<T> dst, Image<const T> src) {
  const Extent extent = mergedExtent(roiSize, isContiguous<L>(dst, roiSize) && isContiguous<L>(src, roiSize));
  for (ptrdiff_t y = 0; y < extent.height; ++y) {
    const T* in = src.row(y);
    T* out = dst.row(y);
    for (ptrdiff_t x = 0; x < extent.width; ++x, in += L::elements, out += L::elements) {
      for (int channel = 0; channel < L::channels; ++channel) {
        setElement(out + channel, detail::lookedUp(table[channel], in + channel));
      }
    }
  }
}

}  // namespace vemi
