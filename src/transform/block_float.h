// The cosine transform of 8 by 8 floats, in registers: columns, a transposition, columns again, and back. A pass leaves
// out one factor for each frequency; those of both passes are one table.
#pragma once

#include "core/lanes.h"
#include "signal/transposed.h"

namespace vemi::transform {

/// A block as vectors: those of a row beside each other.
struct FloatBlock {
  using D = hn::CappedTag<float, 8>;
  using V = hn::Vec<D>;
  static constexpr int N = static_cast<int>(hn::MaxLanes(D()));
  static constexpr int across = 8 / N;

  V v[8][across];

  HWY_INLINE static FloatBlock of(const float* elements) {
    FloatBlock block;
    unrolled<8>([&](auto y) HWY_ATTR {
      unrolled<across>([&](auto k) HWY_ATTR { block.v[y][k] = hn::LoadU(D(), elements + 8 * y + k * N); });
    });
    return block;
  }
  HWY_INLINE void storeTo(float* elements) const {
    unrolled<8>([&](auto y) HWY_ATTR {
      unrolled<across>([&](auto k) HWY_ATTR { hn::StoreU(v[y][k], D(), elements + 8 * y + k * N); });
    });
  }
  HWY_INLINE FloatBlock transposed() const {
    FloatBlock result;
    signal::transpose8([&](auto i, auto first) HWY_ATTR { return v[i][first / N]; },
                       [&](auto i, auto first, auto column) HWY_ATTR { result.v[i][first / N] = column; });
    return result;
  }
};

/// g(u) g(v) / 8: what the results of the forward passes, or the sources of the inverse ones, are multiplied by.
struct BlockFactors {
  alignas(laneAlignment) float factor[64];

  constexpr BlockFactors() : factor() {
    // (1 + sqrt 2) sqrt 2 sin(pi / 16), 2 sin(pi / 8), sqrt 2 sin(3 pi / 16), 1, sqrt 2 cos(3 pi / 16), 2 cos(pi / 8),
    // (1 + sqrt 2) sqrt 2 cos(pi / 16)
    constexpr double g[8] = {1.0, 0.66608002331519944, 0.76536686473017954, 0.78569495838710218,
                             1.0, 1.1758756024193588,  1.8477590650225736,  3.3486104061286084};
    for (int i = 0; i < 64; ++i) factor[i] = static_cast<float>(0.125 * g[i / 8] * g[i % 8]);
  }
};
inline constexpr BlockFactors blockFactors;

// Columns of vectors k.

HWY_INLINE void forwardColumns(FloatBlock& x, int k) {
  using V = FloatBlock::V;
  const FloatBlock::D d;
  const auto add = [](V a, V b) HWY_ATTR { return hn::Add(a, b); };
  const auto sub = [](V a, V b) HWY_ATTR { return hn::Sub(a, b); };
  const auto mul = [&](V a, float factor) HWY_ATTR { return hn::Mul(a, hn::Set(d, factor)); };
  const V s0 = add(x.v[0][k], x.v[7][k]), d0 = sub(x.v[0][k], x.v[7][k]);
  const V s1 = add(x.v[1][k], x.v[6][k]), d1 = sub(x.v[1][k], x.v[6][k]);
  const V s2 = add(x.v[2][k], x.v[5][k]), d2 = sub(x.v[2][k], x.v[5][k]);
  const V s3 = add(x.v[3][k], x.v[4][k]), d3 = sub(x.v[3][k], x.v[4][k]);
  const V outerSum = add(s0, s3), innerSum = add(s1, s2), outer = sub(s0, s3), inner = sub(s1, s2);
  const V eighth = mul(add(inner, outer), 0.70710678f);
  x.v[0][k] = add(outerSum, innerSum);
  x.v[4][k] = sub(outerSum, innerSum);
  x.v[2][k] = add(outer, eighth);
  x.v[6][k] = sub(outer, eighth);
  const V lower = add(d3, d2), upper = add(d1, d0);
  const V minus = sub(lower, mul(upper, 0.41421357f)), plus = add(mul(lower, 0.41421357f), upper);
  const V first = mul(d0, 1.0823922f), middle = mul(add(d2, d1), 0.76536685f);
  const V sum = add(first, middle), difference = sub(first, middle);
  x.v[5][k] = add(difference, minus);
  x.v[3][k] = sub(difference, minus);
  x.v[1][k] = add(sum, plus);
  x.v[7][k] = sub(sum, plus);
}

/// The same graph from its ends to its beginnings.
HWY_INLINE void inverseColumns(FloatBlock& x, int k) {
  using V = FloatBlock::V;
  const FloatBlock::D d;
  const auto add = [](V a, V b) HWY_ATTR { return hn::Add(a, b); };
  const auto sub = [](V a, V b) HWY_ATTR { return hn::Sub(a, b); };
  const auto mul = [&](V a, float factor) HWY_ATTR { return hn::Mul(a, hn::Set(d, factor)); };
  const V outerSum = add(x.v[0][k], x.v[4][k]), innerSum = sub(x.v[0][k], x.v[4][k]);
  const V inner = mul(sub(x.v[2][k], x.v[6][k]), 0.70710678f), outer = add(add(x.v[2][k], x.v[6][k]), inner);
  const V s0 = add(outerSum, outer), s3 = sub(outerSum, outer), s1 = add(innerSum, inner), s2 = sub(innerSum, inner);
  const V sum = add(x.v[1][k], x.v[7][k]), plus = sub(x.v[1][k], x.v[7][k]);
  const V difference = add(x.v[5][k], x.v[3][k]), minus = sub(x.v[5][k], x.v[3][k]);
  const V lower = add(minus, mul(plus, 0.41421357f)), upper = sub(plus, mul(minus, 0.41421357f));
  const V middle = mul(sub(sum, difference), 0.76536685f);
  const V d0 = add(upper, mul(add(sum, difference), 1.0823922f)), d1 = add(middle, upper), d2 = add(lower, middle);
  x.v[0][k] = add(s0, d0);
  x.v[7][k] = sub(s0, d0);
  x.v[1][k] = add(s1, d1);
  x.v[6][k] = sub(s1, d1);
  x.v[2][k] = add(s2, d2);
  x.v[5][k] = sub(s2, d2);
  x.v[3][k] = add(s3, lower);
  x.v[4][k] = sub(s3, lower);
}

template <bool isForward>
HWY_INLINE FloatBlock transformed(FloatBlock block) {
  const auto multiplied = [](FloatBlock x) HWY_ATTR {
    const FloatBlock factors = FloatBlock::of(blockFactors.factor);
    unrolled<8>([&](auto y) HWY_ATTR {
      unrolled<FloatBlock::across>([&](auto k) HWY_ATTR { x.v[y][k] = hn::Mul(x.v[y][k], factors.v[y][k]); });
    });
    return x;
  };
  const auto columns = [](FloatBlock x) HWY_ATTR {
    unrolled<FloatBlock::across>([&](auto k) HWY_ATTR { isForward ? forwardColumns(x, k) : inverseColumns(x, k); });
    return x;
  };
  if (!isForward) block = multiplied(block);
  block = columns(columns(block).transposed());
  return (isForward ? multiplied(block) : block).transposed();
}

}  // namespace vemi::transform
