// Rows whose columns are not all worked alike: whole groups of columns, counted from the row's left end, by one
// arithmetic, and what is left by another. Which columns these are depends on the width alone, never on the length of a
// vector.
#pragma once

#include <cstddef>

#include "core/parallel.h"
#include "core/pixels.h"

namespace vemi {

/// regime(first column, columns), one for each size of group: the first takes all whole groups of the first size, the
/// second those of the second size in what is left, and so on. One that has no columns is not called. Inlined, so that
/// what regimes know of a row stays in registers: a record that goes through memory takes as long as a short row.
template <int... group, class... Regime>
HWY_INLINE void forRegimes(ptrdiff_t width, const Regime&... regime) {
  static_assert(sizeof...(group) == sizeof...(Regime));
  ptrdiff_t x = 0;
  const auto run = [&](ptrdiff_t size, const auto& ofGroup) VEMI_INLINED {
    const ptrdiff_t columns = (width - x) / size * size;
    if (columns > 0) ofGroup(x, columns);
    x += columns;
  };
  (run(group, regime), ...);
}

/// The operations of rows with two arithmetics. A vector of `block` begins with a group.
template <int groupColumns, class BlockOp, class RestOp>
struct Regimes {
  static constexpr int group = groupColumns;
  BlockOp block;
  RestOp rest;
};

template <int group, class BlockOp, class RestOp>
constexpr Regimes<group, BlockOp, RestOp> regimes(BlockOp block, RestOp rest) {
  return {block, rest};
}

/// Whether contiguous rows of so many columns may be one long row: where columns decide, rows of whole groups alone.
template <class Op>
constexpr bool canJoinRows(const Op&, ptrdiff_t) {
  return true;
}
template <int group, class BlockOp, class RestOp>
constexpr bool canJoinRows(const Regimes<group, BlockOp, RestOp>&, ptrdiff_t width) {
  return width % group == 0;
}

template <int group, class BlockOp, class RestOp, class Dst, class... Src>
void mapPixels(ptrdiff_t width, const Regimes<group, BlockOp, RestOp>& op, Dst dst, Src... src) {
  static_assert(detail::PixelBlocks<BlockOp, Dst, Src...>::pixels % group == 0);
  forRegimes<group, 1>(
      width, [&](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED { mapPixels(n, op.block, dst.from(x), src.from(x)...); },
      [&](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED { mapPixels(n, op.rest, dst.from(x), src.from(x)...); });
}

template <int group, class BlockOp, class RestOp, class Dst, class... Src>
void streamPixels(ptrdiff_t width, const Regimes<group, BlockOp, RestOp>& op, Dst dst, Src... src) {
  static_assert(detail::PixelBlocks<BlockOp, Dst, Src...>::pixels % group == 0);
  forRegimes<group, 1>(
      width,
      [&](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED { streamPixels<group>(n, op.block, dst.from(x), src.from(x)...); },
      [&](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED { mapPixels(n, op.rest, dst.from(x), src.from(x)...); });
}

/// The rows of 4:2:0: pair(first row, chroma row) of each two rows, by `rows`, which says who runs them; then
/// last(row, chroma row) of an odd one, in the calling thread. finish() follows in each thread as in rows.run.
template <class Rows, class Pair, class Last, class Finish = NoFinish>
void forRowPairs(const Rows& rows, ptrdiff_t height, const Pair& pair, const Last& last, const Finish& finish = {}) {
  rows.run(
      height / 2, [&](ptrdiff_t k) { pair(2 * k, k); }, finish);
  if (height % 2 != 0) last(height - 1, height / 2);
}

}  // namespace vemi
