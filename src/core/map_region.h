// Element-wise regions: the walk over the rows of a call whose checks are done.
#pragma once

#include "core/image.h"
#include "core/map_row.h"
#include "core/parallel.h"
#include "core/streaming.h"

namespace vemi {

namespace detail {

template <Alpha alpha, class Rows, class T, class IndexedOp, class... Src>
HWY_NOINLINE void mapRows(const Rows& rows, Extent elements, bool small, const IndexedOp& op, Image<T> dst,
                          Image<const Src>... src) {
  const bool inPlace = (isSameImage(src, dst) || ...);
  const Vemi64s traffic = trafficOf(elements, (sizeof(T) + ... + sizeof(Src)));
  if (alpha == Alpha::none && !inPlace && traffic >= streamedTraffic) {
    const auto streamedRow = [&](ptrdiff_t y) {
      const auto map = [&]([[maybe_unused]] ptrdiff_t i, ptrdiff_t n, T* out) { mapElements<alpha>(n, op, out, src.row(y) + i...); };
      streamRow<IndexedOp::period>(elements.width, map, dst.row(y));
    };
    rows.run(elements.height, small, streamedRow, finishStreaming);
  } else {
    rows.run(elements.height, small,
             [&](ptrdiff_t y) { mapElements<alpha>(elements.width, op, dst.row(y), src.row(y)...); });
  }
}

}  // namespace detail

/// destination = indexedOp(sources). Rows says who runs the rows (CallerRows, TeamRows) and `small` whether the image is
/// below its threshold. A source may be the destination. Contiguous rows that stay in one thread are one long row.
template <class L, class Rows, class T, class IndexedOp, class... Src>
void mapRegion(VemiSize roiSize, bool small, const IndexedOp& op, Image<T> dst, Image<const Src>... src) {
  const bool contiguous = isContiguous<L>(dst, roiSize) && (isContiguous<L>(src, roiSize) && ...);
  const Extent pixels = mergedExtent(roiSize, contiguous && Rows::inOneThread(small));
  const Extent elements = {pixels.width * L::elements, pixels.height};
  detail::mapRows<alphaOf<L>>(Rows(), elements, small, op, dst, src...);
}

namespace detail {

/// The calling thread's rows, each of them watched before it is written, until one has a warning.
template <class Watch>
struct WatchedRows {
  const Watch& watch;
  VemiStatus& status;

  template <class Row, class Finish = Nothing>
  void run(ptrdiff_t height, bool /*small*/, const Row& row, const Finish& finish = {}) const {
    const auto watchedRow = [&](ptrdiff_t y) {
      if (status == vemiOk) status = watch(y);
      row(y);
    };
    rowsSerially(height, watchedRow, finish);
  }
};

}  // namespace detail

/// The same for members that can warn: watch(row of each source, elements) looks at a row before it is written and gives
/// its status. The first one that is not vemiOk is returned; all rows are computed.
template <class L, class T, class IndexedOp, class Watch, class... Src>
VemiStatus mapRegionWatched(VemiSize roiSize, const IndexedOp& op, const Watch& watch, Image<T> dst,
                            Image<const Src>... src) {
  const Extent elements = {ptrdiff_t{roiSize.width} * L::elements, roiSize.height};
  VemiStatus status = vemiOk;
  const auto watchRow = [&](ptrdiff_t y) { return watch(src.row(y)..., elements.width); };
  const detail::WatchedRows<decltype(watchRow)> rows = {watchRow, status};
  detail::mapRows<alphaOf<L>>(rows, elements, false, op, dst, src...);
  return status;
}

}  // namespace vemi
