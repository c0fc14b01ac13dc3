// Writing past the caches. A call that moves more than the caches hold gains by stores that do not read the lines they
// write and do not displace what is in use. Nothing of this shows in a result.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "core/blocks.h"
#include "core/image.h"
#include "core/lanes.h"
#include "core/rows.h"

namespace vemi {

/// Bytes read and written in one call from which on its destination is streamed. Measured: about half the last cache.
inline constexpr Vemi64s streamedTraffic = Vemi64s{17} << 20;

/// Bytes of all pixels of a region, where a pixel has `pixelBytes` in all images together.
inline Vemi64s trafficOf(Extent extent, Vemi64s pixelBytes) { return pixelBytes * extent.width * extent.height; }

namespace detail {

template <class T, int elementsPerItem>
bool isLineOrInput(Strand<T, elementsPerItem> strand, ptrdiff_t item) {
  return std::is_const_v<T> || reinterpret_cast<uintptr_t>(strand.at(item)) % laneAlignment == 0;
}

}  // namespace detail

/// forBlocks for a kernel that writes its outputs by hn::Stream, and so wants them aligned: plainRow(first item, items)
/// does what lies in front of the first line and behind the last block, or the whole row where the outputs never begin
/// a line together. Blocks begin at multiples of `period`. finishStreaming follows behind the thread's last row.
template <ptrdiff_t items, int period, class PlainRow, class Kernel, class... S>
HWY_INLINE void forStreamedBlocks(ptrdiff_t count, const PlainRow& plainRow, const Kernel& kernel, S... strand) {
  ptrdiff_t i = 0;
  const auto isReady = [&] { return (detail::isLineOrInput(strand, i) && ...); };
  while (i < period * static_cast<ptrdiff_t>(laneAlignment) && !isReady()) i += period;
  if (!isReady() || i + items > count) return plainRow(0, count);
  plainRow(0, i);
  for (; i + items <= count; i += items) kernel(strand.at(i)...);
  plainRow(i, count - i);
}

}  // namespace vemi
