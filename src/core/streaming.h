// Non-temporal stores, which write past the caches. A call that moves more than the caches hold gains by them: they do
// not read the lines that they write and do not displace what is in use. Nothing of this shows in a result.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include <hwy/cache_control.h>

#include "core/blocks.h"
#include "core/image.h"
#include "core/lanes.h"
#include "core/thresholds.h"

namespace vemi {

/// What a call that moves more than the caches hold wants. Where arithmetic takes longer than memory, streaming gains
/// nothing, and some processors then need twice the time: such operations ask for cached stores.
enum class Stores { cached, streamed };

/// Bytes of all pixels of a region, where a pixel has `pixelBytes` in all images together.
inline Vemi64s trafficOf(Extent extent, Vemi64s pixelBytes) { return pixelBytes * extent.width * extent.height; }

/// Orders a thread's streamed stores before what it does next. It costs as much as thousands of them, so it is called
/// once, behind the thread's last row.
inline void finishStreaming() { hwy::FlushStream(); }

/// Runs a call's rows by `rows`, which says who runs them: row(y), or streamedRow(y) where the call reads and writes
/// more than the caches hold.
template <class Rows, class Row, class StreamedRow>
void runPlainOrStreamed(const Rows& rows, ptrdiff_t height, Vemi64s traffic, const Row& row,
                        const StreamedRow& streamedRow) {
  if (traffic >= streamedTraffic) {
    rows.run(height, streamedRow, finishStreaming);
  } else {
    rows.run(height, row);
  }
}

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
