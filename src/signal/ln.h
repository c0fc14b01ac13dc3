// The natural logarithm of single-precision and of double-precision lanes.
#pragma once

#include <cstdint>

#include "core/lanes.h"
#include "signal/float_parts.h"
#include "signal/polynomial.h"

namespace vemi::signal {

/// Within one unit in the last place of the correctly rounded value, for denormals too; the same bits on all levels. Of
/// +0 and -0 it makes -infinity, of numbers below zero the NaN that the processor makes of an invalid operation;
/// infinity and NaNs stay (a NaN becomes quiet).
///
/// With x = 2^e (1 + f) and 1 + f from the root of 1/2 to the root of 2, ln x = e ln 2 + f + f^2 P(f).
struct Ln {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const hn::RebindToSigned<D> di;
    const auto bits = hn::BitCast(di, x);
    const auto largestDenormal = hn::Set(di, 0x007fffff), infinity = hn::Set(di, 0x7f800000);
    // One comparison: the sum wraps around to below zero from infinity on.
    const auto isNormal = hn::Gt(hn::Add(bits, hn::Set(di, 0x00800000)), hn::Set(di, 0x00ffffff));
    if (HWY_LIKELY(hn::AllTrue(di, isNormal))) return ofNormal(d, bits, hn::Zero(di));

    // The bits of a denormal are an integer that counts 2^-149.
    const auto denormal = hn::Not(hn::Gt(bits, largestDenormal));
    const auto counted = hn::BitCast(di, hn::ConvertTo(d, bits));
    const V regular =
        ofNormal(d, hn::IfThenElse(denormal, counted, bits), hn::IfThenElseZero(denormal, hn::Set(di, -149)));
    const auto magnitude = hn::And(bits, hn::Set(di, 0x7fffffff));
    const auto staysItself = hn::Or(hn::Gt(magnitude, infinity), hn::Eq(bits, infinity));
    auto result = hn::BitCast(di, regular);
    result = hn::IfThenElse(hn::Lt(bits, hn::Zero(di)), hn::Set(di, invalid), result);
    result = hn::IfThenElse(hn::Eq(magnitude, hn::Zero(di)), hn::Set(di, minusInfinity), result);
    result = hn::IfThenElse(staysItself, hn::BitCast(di, hn::Add(x, x)), result);
    return hn::BitCast(d, result);
  }

 private:
  static constexpr int32_t invalid = -0x400000;        // 0xffc00000
  static constexpr int32_t minusInfinity = -0x800000;  // 0xff800000
  static constexpr int32_t rootOfHalf = 0x3f3504f3;
  using Ln2 = signal::Ln2<float>;
  // The minimax polynomial of (ln(1 + f) - f) / f^2 with -1/2 in front, its coefficients rounded one after the other.
  static constexpr float p[] = {-0.5f,           0x1.5556d8p-2f, -0x1.000384p-2f, 0x1.98d840p-3f,
                                -0x1.5381eap-3f, 0x1.3170a4p-3f, -0x1.24339ap-3f, 0x1.647544p-4f};

  /// ln(2^exponent x) of a normal x.
  template <class D, class VI, class V = hn::Vec<D>>
  HWY_INLINE static V ofNormal(D d, VI bits, VI exponent) {
    const hn::RebindToSigned<D> di;
    // The exponent above the fraction, both counted from the root of 1/2.
    const auto aboveRoot = hn::Sub(bits, hn::Set(di, rootOfHalf));
    const auto fraction = hn::And(aboveRoot, hn::Set(di, 0x007fffff));
    const V f = hn::Sub(hn::BitCast(d, hn::Add(fraction, hn::Set(di, rootOfHalf))), hn::Set(d, 1.0f));
    const V power = hn::ConvertTo(d, hn::Add(hn::ShiftRight<23>(aboveRoot), exponent));

    const V tail = hn::Add(hn::Mul(polynomial(d, f, p), hn::Mul(f, f)), hn::Mul(power, hn::Set(d, Ln2::lower)));
    return hn::Add(hn::Mul(power, hn::Set(d, Ln2::upper)), hn::Add(f, tail));
  }
};

/// The logarithm of positive normal numbers in double-precision lanes, within one unit in the last place; the same bits
/// on all levels. Of other numbers it makes anything.
///
/// With x = 2^e (1 + f), 1 + f from the root of 1/2 to the root of 2, and t = f / (2 + f):
/// ln(1 + f) = 2 artanh t = 2 t + t R(t^2) = f - f^2 / 2 + t (f^2 / 2 + R(t^2)).
struct Ln64f {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const auto [e, m] = splitAtRoot(d, x);
    const V f = hn::Sub(m, hn::Set(d, 1.0));
    const V t = hn::Div(f, hn::Add(hn::Set(d, 2.0), f));
    const V t2 = hn::Mul(t, t);
    const V halfSquare = hn::Mul(hn::Mul(f, f), hn::Set(d, 0.5));
    const V odd = hn::Mul(t, hn::Add(halfSquare, hn::Mul(t2, polynomial(d, t2, p))));
    const V small = hn::Sub(halfSquare, hn::Add(odd, hn::Mul(e, hn::Set(d, Ln2::lower))));
    return hn::Sub(hn::Mul(e, hn::Set(d, Ln2::upper)), hn::Sub(small, f));
  }

 private:
  using Ln2 = signal::Ln2<double>;
  // The minimax polynomial of R(t^2) / t^2.
  static constexpr double p[] = {0x1.5555555555592p-1, 0x1.999999997fd7ap-2, 0x1.24924941f4e05p-2, 0x1.c71c520615de1p-3,
                                 0x1.74663fa07a006p-3, 0x1.39a1a70c46460p-3, 0x1.2f0634596e756p-3};
};

}  // namespace vemi::signal
