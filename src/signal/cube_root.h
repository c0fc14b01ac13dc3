// The cube root of single-precision lanes.
#pragma once

#include <cstdint>

#include "core/lane_width.h"
#include "core/lanes.h"
#include "core/processor.h"

namespace vemi::signal {

/// Of positive normal numbers, rounded by the mode that is set as an exact root would be, to nearest for all floats of
/// three octaves and hence for all; the same bits on all levels. Infinity stays; of other numbers it makes anything.
///
/// The bits of a float are nearly its logarithm: a third of them is a root with 5 bits, of which Halley's step
/// y (y^3 + 2 x) / (2 y^3 + x) makes 15. With x = y^3 (1 + e) in double precision the root is y (1 + e)^(1/3), of whose
/// series four terms are left.
struct CubeRoot {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const hn::RebindToSigned<D> di;
    const V third = hn::Mul(hn::ConvertTo(d, hn::BitCast(di, x)), hn::Set(d, 1 / 3.0f));
    const V guess = hn::BitCast(d, hn::Add(truncated(di, third), hn::Set(di, logarithmOfOne)));
    const V half = hn::Set(d, 0.5f), quarter = hn::Set(d, 0.25f);  // so that nothing is beyond the range
    const V quarterCube = hn::Mul(hn::Mul(guess, hn::Mul(guess, quarter)), guess);
    const V above = hn::Add(quarterCube, hn::Mul(x, half));
    const V below = hn::Add(hn::Add(quarterCube, quarterCube), hn::Mul(x, quarter));
    const V near = hn::Mul(guess, hn::Div(above, below));
    const V root = inHalves(
        d, [](auto y, auto halfOfX) HWY_ATTR { return refined(y, halfOfX); }, near, x);
    return hn::IfThenElse(hn::Eq(x, hn::Inf(d)), x, root);
  }

 private:
  static constexpr int32_t logarithmOfOne = 0x2a508935;  // two thirds of the bits of 1, less what the guess errs by

  template <class V>
  HWY_INLINE static V refined(V near, V argument) {
    const hn::DFromV<V> dHalf;
    const hn::Rebind<double, decltype(dHalf)> d;
    const auto y = hn::PromoteTo(d, near), x = hn::PromoteTo(d, argument);
    const auto cube = hn::Mul(hn::Mul(y, y), y);
    const auto e = hn::Div(hn::Sub(x, cube), cube);
    const auto second = hn::Sub(hn::Set(d, 1 / 9.0), hn::Mul(e, hn::Set(d, 5 / 81.0)));
    const auto series = hn::Mul(e, hn::Sub(hn::Set(d, 1 / 3.0), hn::Mul(e, second)));
    return hn::DemoteTo(dHalf, hn::Add(y, hn::Mul(y, series)));
  }
};

/// A root near enough to tell what most results that are made of it round to: less than 2^-22 of itself off, of
/// positive normal numbers. Levels differ within that.
///
/// From 1 / root(x) near r, again by the bits of a float, and e = 1 - x r^3, which is less than 0.103, the root is
/// x r^2 (1 - e)^(-2/3).
struct NearCubeRoot {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const hn::RebindToSigned<D> di;
    const V third = hn::Mul(hn::ConvertTo(d, hn::BitCast(di, x)), hn::Set(d, 1 / 3.0f));
    const V r = hn::BitCast(d, hn::Sub(hn::Set(di, 0x54a1f400), truncated(di, third)));
    const V near = hn::Mul(x, hn::Mul(r, r));
    const V e = hn::NegMulAdd(near, r, hn::Set(d, 1.0f));
    // The polynomial of ((1 - e)^(-2/3) - 1) / e that is exact at the nodes of Chebyshev.
    V series = hn::Set(d, 0x1.b6ea2ap-2f);
    for (const float c : {0x1.d62164p-2f, 0x1.f9a766p-2f, 0x1.1c6e66p-1f, 0x1.555556p-1f}) {
      series = hn::MulAdd(series, e, hn::Set(d, c));
    }
    return hn::MulAdd(hn::Mul(near, e), series, near);
  }
};

}  // namespace vemi::signal
