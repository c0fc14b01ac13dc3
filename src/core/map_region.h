// Element-wise regions: the walk over the rows of a call whose checks are done.
#pragma once

#include <algorithm>

#include "core/image.h"
#include "core/map_row.h"
#include "core/parallel.h"
#include "core/streaming.h"

namespace vemi {

namespace detail {

/// mapElements with stores past the caches.
template <class T, class IndexedOp, class... Src>
HWY_NOINLINE void streamElements(ptrdiff_t count, const IndexedOp& indexedOp, T* dst, const Src*... src) {
  const IndexedOp op = indexedOp;
  const Lanes<T> d;
  constexpr ptrdiff_t N = laneCount<T>;
  constexpr int vectors = IndexedOp::vectors;
  const auto plain = [&]([[maybe_unused]] ptrdiff_t i, ptrdiff_t n) {
    mapElements<Alpha::none>(n, indexedOp, dst + i, src + i...);
  };
  const auto kernel = [&](T* out, const Src*... in) HWY_ATTR {
    const auto block = blockOf<vectors>(d, [&](auto k) HWY_ATTR { return op(d, k, operandOf(d, in + k * N)...); });
    unrolled<vectors>([&](auto k) HWY_ATTR { hn::Stream(block.v[k], d, out + k * N); });
  };
  forStreamedBlocks<vectors * N, IndexedOp::period>(count, plain, kernel, Strand<T>{dst}, Strand<const Src>{src}...);
}

template <Alpha alpha, Stores how, class Rows, class T, class IndexedOp, class... Src>
HWY_NOINLINE void mapRows(const Rows& rows, Extent elements, const IndexedOp& op, Image<T> dst,
                          Image<const Src>... src) {
  const auto row = [&](ptrdiff_t y) { mapElements<alpha>(elements.width, op, dst.row(y), src.row(y)...); };
  if constexpr (alpha == Alpha::none && how == Stores::streamed) {
    const auto streamedRow = [&](ptrdiff_t y) { streamElements(elements.width, op, dst.row(y), src.row(y)...); };
    const bool inPlace = (isSameImage(src, dst) || ...);
    const Vemi64s traffic = inPlace ? 0 : trafficOf(elements, (sizeof(T) + ... + sizeof(Src)));
    runPlainOrStreamed(rows, elements.height, traffic, row, streamedRow);
  } else {
    rows.run(elements.height, row);
  }
}

}  // namespace detail

/// destination = indexedOp(sources). `rows` says who runs the rows: CallerRows or TeamRows. A source may be the
/// destination. Contiguous rows that stay in one thread are one long row.
template <class L, Stores how = Stores::streamed, class Rows, class T, class IndexedOp, class... Src>
void mapRegion(const Rows& rows, VemiSize roiSize, const IndexedOp& op, Image<T> dst, Image<const Src>... src) {
  const bool contiguous = isContiguous<L>(dst, roiSize) && (isContiguous<L>(src, roiSize) && ...);
  const Extent pixels = mergedExtent(roiSize, contiguous && rows.inOneThread());
  const Extent elements = {pixels.width * L::elements, pixels.height};
  detail::mapRows<alphaOf<L>, how>(rows, elements, op, dst, src...);
}

namespace detail {

/// An operation that notes whether an indexed test of its sources, a mask, holds anywhere. That is rare: a branch that
/// is not taken costs less than to collect the masks.
template <class IndexedOp, class IndexedTest>
struct Tested {
  static constexpr int vectors = IndexedOp::vectors;
  static constexpr int period = std::max(IndexedOp::period, IndexedTest::period);
  IndexedOp op;
  IndexedTest test;
  bool* any;

  template <class D, class K, class... V>
  HWY_INLINE auto operator()(D d, K k, V... v) const {
    if (HWY_UNLIKELY(!hn::AllFalse(d, test(d, k, v...)))) *any = true;
    return op(d, k, v...);
  }
};

template <class Test>
struct OfColours {
  static constexpr int period = 4;
  Test test;

  template <class D, class K, class... V>
  HWY_INLINE auto operator()(D d, K k, V... v) const {
    return hn::And(test(d, v...), colourLanes(d, k * laneCount<hn::TFromD<D>> % 4));
  }
};

}  // namespace detail

/// test(d, v...) of the elements that layout L works on.
template <class L, class Test>
auto inWorkedChannels(Test test) {
  if constexpr (L::keepsAlpha) {
    return detail::OfColours<Test>{test};
  } else {
    return eachVector(test);
  }
}

/// mapRegion in the calling thread, and whether an indexed test(d, k, lanes of the sources), a mask, holds anywhere:
/// eachVector(test) looks at a kept alpha too, inWorkedChannels<L>(test) does not.
template <class L, Stores how = Stores::streamed, class T, class IndexedOp, class IndexedTest, class... Src>
bool mapRegionTested(VemiSize roiSize, const IndexedOp& op, const IndexedTest& test, Image<T> dst,
                     Image<const Src>... src) {
  bool any = false;
  const detail::Tested<IndexedOp, IndexedTest> tested = {op, test, &any};
  mapRegion<L, how>(CallerRows(), roiSize, tested, dst, src...);
  return any;
}

namespace detail {

/// The calling thread's rows, each of them watched before it is written, until one has a warning.
template <class Watch>
struct WatchedRows {
  const Watch& watch;
  VemiStatus& status;

  template <class Row, class Finish = NoFinish>
  void run(ptrdiff_t height, const Row& row, const Finish& finish = {}) const {
    const auto watchedRow = [&](ptrdiff_t y) {
      if (status == vemiOk) status = watch(y);
      row(y);
    };
    rowsSerially({0, height}, watchedRow, finish);
  }
};

}  // namespace detail

/// For members whose warning depends on whole rows: watch(row of each source, elements) looks at a row before it is
/// written and gives its status. The first one that is not vemiOk is returned; all rows are computed. Rows stay rows
/// where they are contiguous too: which status comes first depends on where they end.
template <class L, Stores how = Stores::streamed, class T, class IndexedOp, class Watch, class... Src>
VemiStatus mapRegionWatched(VemiSize roiSize, const IndexedOp& op, const Watch& watch, Image<T> dst,
                            Image<const Src>... src) {
  const Extent elements = {ptrdiff_t{roiSize.width} * L::elements, roiSize.height};
  VemiStatus status = vemiOk;
  const auto watchRow = [&](ptrdiff_t y) { return watch(src.row(y)..., elements.width); };
  const detail::WatchedRows<decltype(watchRow)> rows = {watchRow, status};
  detail::mapRows<alphaOf<L>, how>(rows, elements, op, dst, src...);
  return status;
}

}  // namespace vemi
