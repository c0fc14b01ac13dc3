// The arc tangent of two arguments: the angle of a point, of single- and of double-precision lanes.
#pragma once

#include <cstdint>

#include "core/lanes.h"
#include "core/processor.h"
#include "signal/polynomial.h"

namespace vemi::signal {

namespace detail {

/// The polynomial, in z = t^2, of (atan t - t) / t^3 for t up to 1/2, which is exact at the nodes of Chebyshev; angles
/// in two parts; the bits of the exponent; from where on, and up to its inverse, numbers need no scale.
template <class T>
struct ArcTangentNumbers;

template <>
struct ArcTangentNumbers<float> {
  static constexpr float series[] = {-0x1.555556p-2f, 0x1.99998ep-3f, -0x1.248f72p-3f, 0x1.c690dep-4f,
                                     -0x1.6ddf9ep-4f, 0x1.121368p-4f, -0x1.0c35bep-5f};
  static constexpr float quarter = 0x1.921fb6p+0f, quarterRest = -0x1.777a5cp-25f;
  static constexpr float ofHalf = 0x1.dac67p-2f, ofHalfRest = 0x1.586ed4p-28f;
  static constexpr uint32_t exponent = 0x7f800000, lowestOfExponent = 0x00800000;
  static constexpr float least = 0x1p-50f;
};

template <>
struct ArcTangentNumbers<double> {
  static constexpr double series[] = {
      -0x1.5555555555555p-2, 0x1.99999999998e1p-3,  -0x1.2492492488296p-3, 0x1.c71c71c01b24cp-4,  -0x1.745d16026efd7p-4,
      0x1.3b138e6372dcap-4,  -0x1.110ea50256abfp-4, 0x1.e1a7b2562efc5p-5,  -0x1.ad44da04adea3p-5, 0x1.7b20b751c966ap-5,
      -0x1.37d750492dd9bp-5, 0x1.99b4e0c058248p-6,  -0x1.2dfbaab9786efp-7};
  static constexpr double quarter = 0x1.921fb54442d18p+0, quarterRest = 0x1.1a62633145c07p-54;
  static constexpr double ofHalf = 0x1.dac670561bb4fp-2, ofHalfRest = 0x1.a2b7f222f65e2p-56;
  static constexpr uint64_t exponent = 0x7ff0000000000000, lowestOfExponent = 0x0010000000000000;
  static constexpr double least = 0x1p-400;
};

}  // namespace detail

/// The angle of (x, y), from -pi to pi, with the signs of zeros and infinities that are the standard's; within one unit
/// in the last place of the correctly rounded angle, and the same bits on all levels.
///
/// With a the lesser of |x| and |y| and b the greater, the angle is whole quarters plus or minus atan(a / b), and from
/// a / b = 1/2 on that is atan(1/2) + atan t, where t = (2 a - b) / (2 b + a): the difference is exact, and what the
/// quotient loses is little beside the angle.
struct ArcTangent {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V y, V x) const {
    using T = hn::TFromD<D>;
    using Numbers = detail::ArcTangentNumbers<T>;
    const V one = hn::Set(d, 1), signBit = hn::SignBit(d);
    const V magnitudeX = hn::Abs(x), magnitudeY = hn::Abs(y);
    const auto isSteep = hn::Gt(magnitudeY, magnitudeX), isLeft = isNegative(d, x);
    // A NaN is one of the two.
    V a = vemi::lesser(magnitudeX, magnitudeY), b = vemi::greater(magnitudeY, magnitudeX);
    const auto isPlain = hn::And(
        hn::Lt(a, b), hn::And(hn::Ge(a, hn::Set(d, Numbers::least)), hn::Lt(b, hn::Set(d, 1 / Numbers::least))));
    if (HWY_UNLIKELY(!hn::AllTrue(d, isPlain))) scaleOrdered(d, a, b);
    const V rest = hn::Sub(b, a);
    const auto isLarge = hn::Ge(a, rest);
    const V above = hn::Sub(a, hn::IfThenElseZero(isLarge, rest));
    const V below = hn::Add(hn::Add(b, hn::IfThenElseZero(isLarge, b)), hn::IfThenElseZero(isLarge, a));
    const V t = hn::Div(above, below), z = hn::Mul(t, t);
    const V series = hn::Mul(hn::Mul(t, z), polynomial(d, z, Numbers::series));

    // Steep: a quarter less the angle, or plus it to the left; else the angle, or a half turn less it to the left.
    const V sign = hn::And(hn::Xor(x, hn::IfThenElseZero(isSteep, signBit)), signBit);
    const auto turned = [&](V v) HWY_ATTR { return hn::Xor(v, sign); };
    const V count = hn::IfThenElse(isSteep, one, hn::IfThenElseZero(isLeft, hn::Set(d, 2)));
    const auto quartersOf = [&](T quarter) HWY_ATTR { return hn::Mul(count, hn::Set(d, quarter)); };
    const auto atHalf = [&](T angle) HWY_ATTR { return turned(hn::IfThenElseZero(isLarge, hn::Set(d, angle))); };
    const V quarters = quartersOf(Numbers::quarter), ofHalf = atHalf(Numbers::ofHalf);
    // What sums lose is exact, since each adds to 0 or to the greater.
    const V base = hn::Add(quarters, ofHalf);
    const V lostOfBase = hn::Add(hn::Sub(quarters, base), ofHalf);
    const V sum = hn::Add(base, turned(t));
    const V lost = hn::Add(hn::Sub(base, sum), turned(t));
    const V small = hn::Add(hn::Add(quartersOf(Numbers::quarterRest), atHalf(Numbers::ofHalfRest)), turned(series));
    return hn::CopySign(hn::Add(sum, hn::Add(hn::Add(lost, lostOfBase), small)), y);
  }

 private:
  template <class D, class V>
  HWY_INLINE static auto isNegative(D d, V v) {
    const hn::RebindToSigned<D> di;
    return hn::RebindMask(d, hn::Lt(hn::BitCast(di, v), hn::Zero(di)));
  }

  /// Equal ones may be zeros or infinities. The others are scaled so that nothing leaves the range.
  template <class D, class V>
  HWY_INLINE static void scaleOrdered(D d, V& a, V& b) {
    const V zero = hn::Zero(d), one = hn::Set(d, 1), scale = reciprocalPower(d, b);
    const auto areEqual = hn::Eq(a, b);
    a = hn::IfThenElse(areEqual, hn::IfThenElseZero(hn::Gt(a, zero), one), hn::Mul(a, scale));
    b = hn::IfThenElse(areEqual, one, hn::Mul(b, scale));
  }

  /// A power of two that brings v, from 0 on, near 1.
  template <class D, class V>
  HWY_INLINE static V reciprocalPower(D d, V v) {
    using Numbers = detail::ArcTangentNumbers<hn::TFromD<D>>;
    const hn::RebindToSigned<D> di;
    using Bits = hn::TFromD<decltype(di)>;
    constexpr auto one = static_cast<Bits>(Numbers::lowestOfExponent), all = static_cast<Bits>(Numbers::exponent);
    const auto exponent = hn::And(hn::BitCast(di, v), hn::Set(di, all));
    const auto most = hn::Set(di, all - 2 * one);
    const auto limited = hn::IfThenElse(hn::Gt(exponent, most), most, exponent);
    return hn::BitCast(d, hn::Sub(hn::Set(di, all - one), limited));
  }
};

}  // namespace vemi::signal
