// Squares of lanes with rows and columns changed over.
#pragma once

#include <type_traits>

#include "core/lanes.h"

namespace vemi::signal {

/// Squares of four within 128-bit blocks: those of each four of `count` vectors.
template <int count, class D, class V>
HWY_INLINE void transposeInBlocks(D d, V* v) {
  const hn::RepartitionToWide<D> dPairs;
  const auto lowerPairs = [&](V a, V b) HWY_ATTR {
    return hn::BitCast(d, hn::InterleaveLower(dPairs, hn::BitCast(dPairs, a), hn::BitCast(dPairs, b)));
  };
  const auto upperPairs = [&](V a, V b) HWY_ATTR {
    return hn::BitCast(d, hn::InterleaveUpper(dPairs, hn::BitCast(dPairs, a), hn::BitCast(dPairs, b)));
  };
  unrolled<count / 4>([&](auto quad) HWY_ATTR {
    V* const q = v + 4 * quad;
    const V lower01 = hn::InterleaveLower(d, q[0], q[1]), upper01 = hn::InterleaveUpper(d, q[0], q[1]);
    const V lower23 = hn::InterleaveLower(d, q[2], q[3]), upper23 = hn::InterleaveUpper(d, q[2], q[3]);
    q[0] = lowerPairs(lower01, lower23);
    q[1] = upperPairs(lower01, lower23);
    q[2] = lowerPairs(upper01, upper23);
    q[3] = upperPairs(upper01, upper23);
  });
}

/// As many vectors as they have lanes: lane j of vector i goes to lane i of vector j.
template <class D, class V>
HWY_INLINE void transpose(D d, V* v) {
  constexpr int N = static_cast<int>(hn::MaxLanes(D()));
  static_assert(N == 4 || N == 8 || N == 16);
  transposeInBlocks<N>(d, v);
  if constexpr (N == 16) {
    unrolled<8>([&](auto i) HWY_ATTR {
      constexpr int at = i / 4 * 8 + i % 4;
      const V a = v[at], b = v[at + 4];
      v[at] = hn::OddEvenBlocks(hn::SwapAdjacentBlocks(b), a);
      v[at + 4] = hn::OddEvenBlocks(b, hn::SwapAdjacentBlocks(a));
    });
  }
  if constexpr (N >= 8) {
    unrolled<N / 2>([&](auto i) HWY_ATTR {
      const V a = v[i], b = v[i + N / 2];
      v[i] = hn::ConcatLowerLower(d, b, a);
      v[i + N / 2] = hn::ConcatUpperUpper(d, b, a);
    });
  }
}

/// A square of 8 by 8 floats: column(i, first, its elements from `first` on...) for column i of what row(i, first)
/// loads.
template <class Row, class Column>
HWY_INLINE void transpose8(const Row& row, const Column& column) {
  const hn::CappedTag<float, 8> d;
  using V = hn::Vec<decltype(d)>;
  constexpr int N = static_cast<int>(hn::MaxLanes(d));
  unrolled<8 / N>([&](auto down) HWY_ATTR {
    unrolled<8 / N>([&](auto across) HWY_ATTR {
      V v[N];
      unrolled<N>([&](auto i) HWY_ATTR { v[i] = row(down * N + i, across * N); });
      transpose(d, v);
      unrolled<N>([&](auto i) HWY_ATTR { column(across * N + i, down * N, v[i]); });
    });
  });
}

/// The same of what stands in memory: row(d, i, first) loads lanes of d. Halves of vectors are put together as they are
/// loaded, which spares the last third of the shuffles.
template <class Row, class Column>
HWY_INLINE void transposeLoaded8(const Row& row, const Column& column) {
  const hn::CappedTag<float, 8> d;
  if constexpr (hn::MaxLanes(hn::CappedTag<float, 8>()) == 8) {
    const hn::Half<decltype(d)> dHalf;
    hn::Vec<decltype(d)> v[8];
    unrolled<8>([&](auto i) HWY_ATTR {
      constexpr std::integral_constant<int, i % 4> upper;
      constexpr std::integral_constant<int, i % 4 + 4> lower;
      constexpr std::integral_constant<int, i / 4 * 4> first;
      v[i] = hn::Combine(d, row(dHalf, lower, first), row(dHalf, upper, first));
    });
    transposeInBlocks<8>(d, v);
    unrolled<8>([&](auto i) HWY_ATTR { column(i, std::integral_constant<int, 0>(), v[i]); });
  } else {
    transpose8([&](auto i, auto first) HWY_ATTR { return row(d, i, first); }, column);
  }
}

}  // namespace vemi::signal
