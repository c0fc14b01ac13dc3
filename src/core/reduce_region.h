// The walk of a reduction: numbers out of a region.
//
// A row is cut into blocks of lanes that do not depend on the length of a vector, and each vector of a block is added
// to accumulators of its own phase, so that a lane meets one channel only. The last block ends with the row; what it
// shares with its predecessor is replaced by elements that change nothing, and so is what a short row lacks.
// Accumulators are as narrow as they can be and are emptied before they are full.
//
// A reduction is a record that gives
//   Element, Lane         types of the elements that it reads and of the lanes that it adds to;
//   accumulators          how many a vector of elements is added to. A lane lies over sizeof(Lane) / sizeof(Element)
//                         elements; where these are of several channels, accumulator a takes the one at place a modulo
//                         their number;
//   capacity              vectors that an accumulator takes before it must be emptied; see below;
//   order                 what the result may depend on, see below;
//   start(a)              what the lanes of accumulator a begin with;
//   add(d, k, sums, v...) adds a vector of each source to sums.of[a].v[k], for each accumulator a;
//   padding(row, channel) an element that changes nothing, equal in all sources.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/image.h"
#include "core/lanes.h"
#include "core/map_row.h"

namespace vemi {

enum class ReductionOrder {
  any,     // of exact sums; contiguous rows are one long row
  repeat,  // any, and an element may count more than once
  fixed    // of float sums: each element of a block has its lane; their walk is measure/float_sums.h
};

/// The capacity of lanes that are never full.
inline constexpr ptrdiff_t unlimitedCapacity = ptrdiff_t{1} << 30;

/// The capacity of lanes that add up terms of at most `largestTerm`.
template <class Lane>
constexpr ptrdiff_t capacityFor(uint64_t largestTerm) {
  const uint64_t terms = std::numeric_limits<Lane>::max() / largestTerm;
  return static_cast<ptrdiff_t>(std::min<uint64_t>(terms, unlimitedCapacity));
}

/// Elements of a block: whole pixels, and whole vectors of any length.
template <class T, class L>
inline constexpr ptrdiff_t blockItems = (L::elements == 3 ? 192 : 128) / static_cast<ptrdiff_t>(sizeof(T));

template <class L, class Reduction>
struct Accumulators {
  using Element = typename Reduction::Element;
  using Lane = typename Reduction::Lane;
  using V = hn::Vec<Lanes<Lane>>;
  static constexpr int count = Reduction::accumulators;
  static constexpr ptrdiff_t items = blockItems<Element, L>;
  static constexpr int vectors = static_cast<int>(items / laneCount<Element>);
  /// Independent sums, so that an addition need not wait for the one before.
  static constexpr int chains = Reduction::order == ReductionOrder::fixed ? vectors
                                : L::elements == 3                        ? 3
                                : 4 / count < vectors                     ? 4 / count
                                                                          : vectors;
  static constexpr ptrdiff_t capacity = Reduction::capacity / (vectors / chains);  // in blocks
  static_assert(items % L::elements == 0 && vectors % chains == 0 && capacity > 0);

  /// Of each accumulator.
  static constexpr ptrdiff_t lanes = chains * laneCount<Lane>;

  /// Of lane i of an accumulator.
  static constexpr int channelOf(int accumulator, ptrdiff_t i) {
    constexpr ptrdiff_t spread = laneCount<Element> / laneCount<Lane>;
    return static_cast<int>((spread * i + accumulator % spread) % L::elements);
  }

  Vectors<V, chains> of[count];

  HWY_INLINE void restart() {
    unrolled<count>([&](auto a) HWY_ATTR {
      const V start = hn::Set(Lanes<Lane>(), Reduction::start(a));
      unrolled<chains>([&](auto k) HWY_ATTR { of[a].v[k] = start; });
    });
  }
};

/// The lanes of all accumulators, in memory.
template <class A>
struct EmptiedLanes {
  alignas(laneAlignment) typename A::Lane of[A::count][A::lanes];

  HWY_INLINE explicit EmptiedLanes(const A& sums) {
    const Lanes<typename A::Lane> d;
    unrolled<A::count>([&](auto a) HWY_ATTR {
      unrolled<A::chains>([&](auto k) HWY_ATTR { hn::Store(sums.of[a].v[k], d, of[a] + k * hn::Lanes(d)); });
    });
  }
};

/// Adds blocks to a local, which stays in registers.
template <class A, class Reduction, class... Src>
HWY_INLINE void addBlocksTo(A& sums, ptrdiff_t blocks, const Reduction& reduction, const Src*... src) {
  const Lanes<typename A::Element> d;
  constexpr ptrdiff_t N = laneCount<typename A::Element>;
  for (; blocks > 0; --blocks) {
    unrolled<A::vectors>([&](auto k) HWY_ATTR {
      const std::integral_constant<int, k % A::chains> chain;
      reduction.add(d, chain, sums, hn::LoadU(d, src + k * N)...);
    });
    ((src += A::items), ...);
  }
}

/// A row's last elements, `count` modulo a block's, at the end of a block.
template <class L, class A>
struct RowEnd {
  using T = typename A::Element;
  alignas(laneAlignment) T element[A::items];

  template <class Reduction>
  HWY_INLINE RowEnd(const Reduction& reduction, const T* row, ptrdiff_t count) {
    constexpr ptrdiff_t N = laneCount<T>;
    const Lanes<T> d;
    T pixel[L::elements];
    for (int channel = 0; channel < L::elements; ++channel) pixel[channel] = reduction.padding(row, channel);
    const auto padding = channelConstants<L>(pixel);
    const ptrdiff_t rest = count % A::items;
    if (count < A::items) {
      unrolled<A::vectors>([&](auto k) HWY_ATTR { hn::Store(padding.v[k % pixelVectors<L>], d, element + k * N); });
      std::memcpy(element + A::items - rest, row, static_cast<size_t>(rest) * sizeof(T));
      return;
    }
    const T* const last = row + count - A::items;
    unrolled<A::vectors>([&](auto k) HWY_ATTR {
      auto v = hn::LoadU(d, last + k * N);
      if constexpr (Reduction::order != ReductionOrder::repeat) {
        const ptrdiff_t seen = std::clamp<ptrdiff_t>(A::items - rest - k * N, 0, N);
        v = hn::IfThenElse(hn::FirstN(d, static_cast<size_t>(seen)), padding.v[k % pixelVectors<L>], v);
      }
      hn::Store(v, d, element + k * N);
    });
  }
};

namespace detail {

/// A function of its own, so that the accumulators have the registers to themselves.
template <class A, class Reduction, class... Src>
HWY_NOINLINE void addBlocks(A& accumulators, ptrdiff_t blocks, const Reduction& reduction, const Src*... src) {
  A sums = accumulators;
  addBlocksTo(sums, blocks, reduction, src...);
  accumulators = sums;
}

}  // namespace detail

/// Runs the reduction over all elements of a region and hands its lanes, as EmptiedLanes, to sink(lanes) whenever they
/// are emptied. L says what a pixel has in memory; an alpha channel is added up like any other, for the sink to ignore.
template <class L, class Reduction, class Sink, class T, class... Others>
HWY_NOINLINE void reduceRegion(VemiSize roiSize, const Reduction& reduction, Sink& sink, Image<const T> src,
                               Others... others) {
  using A = Accumulators<L, Reduction>;
  static_assert(Reduction::order != ReductionOrder::fixed);
  const bool contiguous = isContiguous<L>(src, roiSize) && (isContiguous<L>(others, roiSize) && ...);
  const Extent pixels = mergedExtent(roiSize, contiguous);
  const ptrdiff_t elements = pixels.width * L::elements;
  A sums;
  sums.restart();
  ptrdiff_t room = A::capacity;
  const auto empty = [&] {
    sink(EmptiedLanes<A>(sums));
    sums.restart();
    room = A::capacity;
  };
  const auto add = [&](ptrdiff_t blocks, auto... row) {
    while (blocks > 0) {
      const ptrdiff_t some = std::min(blocks, room);
      detail::addBlocks(sums, some, reduction, row...);
      ((row += some * A::items), ...);
      blocks -= some;
      room -= some;
      if (room == 0) empty();
    }
  };
  for (ptrdiff_t y = 0; y < pixels.height; ++y) {
    add(elements / A::items, src.row(y), others.row(y)...);
    if (elements % A::items != 0) {
      const auto endOf = [&](const T* row) { return RowEnd<L, A>(reduction, row, elements); };
      [&](const auto&... end) { add(1, end.element...); }(endOf(src.row(y)), endOf(others.row(y))...);
    }
  }
  if (room < A::capacity) empty();
}

}  // namespace vemi
