// The arc tangent of two arguments: the angle of a point, of single- and of double-precision lanes.
#pragma once

#include <cstdint>

#include "core/lanes.h"
#include "core/processor.h"
#include "signal/polynomial.h"

namespace vemi::signal {

namespace detail {

/// The polynomial, in z = t^2, of (atan t - t) / t^3 for t up to 1/2; angles in two parts, of which the first ones are
/// so coarse that all their sums up to a half turn are exact; the bits of the exponent; from where on, and up to where,
/// the greater number needs no scale.
template <class T>
struct ArcTangentNumbers;

template <>
struct ArcTangentNumbers<float> {
  static constexpr float series[] = {-0x1.555552p-2f, 0x1.999744p-3f,  -0x1.245030p-3f,
                                     0x1.c07268p-4f,  -0x1.480d40p-4f, 0x1.3fd554p-5f};
  static constexpr float quarter = 0x1.921fb4p+0f, quarterRest = 0x1.4442d2p-24f;
  static constexpr float ofHalf = 0x1.dac670p-2f, ofHalfRest = 0x1.586ed4p-28f;
  static constexpr uint32_t exponent = 0x7f800000, lowestOfExponent = 0x00800000;
  static constexpr float least = 0x1p-100f, most = 0x1p127f;
};

template <>
struct ArcTangentNumbers<double> {
  static constexpr double series[] = {
      -0x1.5555555555555p-2, 0x1.99999999998e1p-3,  -0x1.2492492488296p-3, 0x1.c71c71c01b24cp-4,  -0x1.745d16026efd7p-4,
      0x1.3b138e6372dcap-4,  -0x1.110ea50256abfp-4, 0x1.e1a7b2562efc5p-5,  -0x1.ad44da04adea3p-5, 0x1.7b20b751c966ap-5,
      -0x1.37d750492dd9bp-5, 0x1.99b4e0c058248p-6,  -0x1.2dfbaab9786efp-7};
  static constexpr double quarter = 0x1.921fb54442d18p+0, quarterRest = 0x1.1a62633145c07p-54;
  static constexpr double ofHalf = 0x1.dac670561bb50p-2, ofHalfRest = -0x1.2ea406ee84d0fp-55;
  static constexpr uint64_t exponent = 0x7ff0000000000000, lowestOfExponent = 0x0010000000000000;
  static constexpr double least = 0x1p-1000, most = 0x1p1023;
};

}  // namespace detail

/// The angle of (x, y), from -pi to pi, with the signs of zeros and infinities that are the standard's; within one unit
/// in the last place of the correctly rounded angle, and the same bits on all levels.
///
/// With a the lesser of |x| and |y| and b the greater, the angle is whole quarters plus or minus atan(a / b), and from
/// a / b = 1/2 on that is atan(1/2) + atan t, where t = (a - b / 2) / (b + a / 2): the difference is exact, and what
/// the quotient loses is little beside the angle. All that is small is added to t ahead of the coarse angles.
struct ArcTangent {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V y, V x) const {
    using T = hn::TFromD<D>;
    using Numbers = detail::ArcTangentNumbers<T>;
    const V one = hn::Set(d, 1), half = hn::Set(d, 0.5), signBit = hn::SignBit(d);
    const V magnitudeX = hn::Abs(x), magnitudeY = hn::Abs(y);
    const auto isSteep = hn::Gt(magnitudeY, magnitudeX);
    // A NaN is one of the two.
    V a = vemi::lesser(magnitudeX, magnitudeY), b = vemi::greater(magnitudeY, magnitudeX);
    const auto isPlain = hn::And(hn::Ge(b, hn::Set(d, Numbers::least)), hn::Lt(b, hn::Set(d, Numbers::most)));
    if (HWY_UNLIKELY(!hn::AllTrue(d, isPlain))) {
      V scaledA = a, scaledB = b;
      scaleOrdered(d, scaledA, scaledB);
      a = hn::IfThenElse(isPlain, a, scaledA);  // whatever the neighbours: a quotient may be denormal
      b = hn::IfThenElse(isPlain, b, scaledB);
    }
    const V halfB = hn::Mul(b, half);
    const auto isLarge = hn::Ge(a, halfB);
    const auto ifLarge = [&](V v) HWY_ATTR { return hn::IfThenElseZero(isLarge, v); };
    const V t = hn::Div(hn::Sub(a, ifLarge(halfB)), hn::Add(b, ifLarge(hn::Mul(a, half)))), z = hn::Mul(t, t);
    const V series = hn::Mul(hn::Mul(t, z), polynomial(d, z, Numbers::series));

    // The angle, or its negative where atan(a / b) counts downwards, is so many quarters and that: steep, one to the
    // left, less one to the right; else less two to the left.
    const V side = hn::Or(hn::And(x, signBit), one), turned = hn::Xor(side, hn::IfThenElseZero(isSteep, signBit));
    const V quarters = hn::Sub(turned, hn::IfThenZeroElse(isSteep, one));
    const auto coarse = [&](T quarter, T ofHalf) HWY_ATTR {
      return hn::Add(hn::Mul(quarters, hn::Set(d, quarter)), ifLarge(hn::Set(d, ofHalf)));
    };
    const V rest = hn::Add(coarse(Numbers::quarterRest, Numbers::ofHalfRest), series);
    return hn::CopySign(hn::Add(coarse(Numbers::quarter, Numbers::ofHalf), hn::Add(t, rest)), y);
  }

 private:
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
