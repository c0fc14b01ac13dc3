// The natural logarithm of single-precision lanes, and the status of a row of logarithms.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/any_element.h"
#include "core/lanes.h"
#include "signal/polynomial.h"
#include "vemi/status.h"
#include "vemi/types.h"

namespace vemi {

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
  // ln 2 in two parts; the first has so few bits that its product with an exponent is exact.
  static constexpr float ln2Upper = 0x1.63p-1f, ln2Lower = -0x1.bd0106p-13f;
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

    const V tail = hn::Add(hn::Mul(polynomial(d, f, p), hn::Mul(f, f)), hn::Mul(power, hn::Set(d, ln2Lower)));
    return hn::Add(hn::Mul(power, hn::Set(d, ln2Upper)), hn::Add(f, tail));
  }
};

/// The logarithm of integers from 1 on in double-precision lanes, with 40 bits of precision.
///
/// With x = 2^e m and m from the root of 1/2 to the root of 2, ln x = e ln 2 + 2 artanh((m - 1) / (m + 1)).
struct LnOfInteger {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    constexpr double artanh[] = {1.0, 1.0 / 3, 1.0 / 5, 1.0 / 7, 1.0 / 9, 1.0 / 11, 1.0 / 13};
    const hn::RebindToUnsigned<D> du;
    const auto bits = hn::BitCast(du, x);
    const auto e = hn::ShiftRight<52>(hn::Sub(bits, hn::Set(du, rootOfHalf)));
    const V m = hn::BitCast(d, hn::Sub(bits, hn::ShiftLeft<52>(e)));
    const V integers = hn::Set(d, 0x1p52);  // at this size the last bit counts ones
    const V power = hn::Sub(hn::BitCast(d, hn::Or(e, hn::BitCast(du, integers))), integers);
    const V one = hn::Set(d, 1.0);
    const V t = hn::Div(hn::Sub(m, one), hn::Add(m, one));
    const V series = hn::Mul(hn::Add(t, t), polynomial(d, hn::Mul(t, t), artanh));
    return hn::Add(hn::Mul(power, hn::Set(d, 0x1.62e42fefa39efp-1)), series);
  }

 private:
  static constexpr uint64_t rootOfHalf = 0x3fe6a09e667f3bcd;
};

/// The logarithm of positive normal numbers in double-precision lanes, within one unit in the last place; the same bits
/// on all levels. Of other numbers it makes anything.
///
/// With x = 2^e (1 + f), 1 + f from the root of 1/2 to the root of 2, and t = f / (2 + f):
/// ln(1 + f) = 2 artanh t = 2 t + t R(t^2) = f - f^2 / 2 + t (f^2 / 2 + R(t^2)).
struct Ln64f {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const hn::RebindToUnsigned<D> du;
    // The exponent above the fraction, both counted from the root of 1/2.
    const auto aboveRoot = hn::Sub(hn::BitCast(du, x), hn::Set(du, rootOfHalf));
    const auto biased = hn::ShiftRight<52>(hn::Add(aboveRoot, hn::Set(du, uint64_t{1023} << 52)));
    const V e = hn::Sub(hn::BitCast(d, hn::Or(biased, hn::BitCast(du, hn::Set(d, 0x1p52)))), hn::Set(d, 0x1p52 + 1023));
    const auto fraction = hn::And(aboveRoot, hn::Set(du, (uint64_t{1} << 52) - 1));
    const V f = hn::Sub(hn::BitCast(d, hn::Add(fraction, hn::Set(du, rootOfHalf))), hn::Set(d, 1.0));

    const V t = hn::Div(f, hn::Add(hn::Set(d, 2.0), f));
    const V t2 = hn::Mul(t, t);
    const V halfSquare = hn::Mul(hn::Mul(f, f), hn::Set(d, 0.5));
    const V odd = hn::Mul(t, hn::Add(halfSquare, hn::Mul(t2, polynomial(d, t2, p))));
    const V small = hn::Sub(halfSquare, hn::Add(odd, hn::Mul(e, hn::Set(d, ln2Lower))));
    return hn::Sub(hn::Mul(e, hn::Set(d, ln2Upper)), hn::Sub(small, f));
  }

 private:
  static constexpr uint64_t rootOfHalf = 0x3fe6a09e667f3bcd;
  // ln 2 in two parts; the first has so few bits that its product with an exponent is exact.
  static constexpr double ln2Upper = 0x1.62e42fefp-1, ln2Lower = 0x1.473de6af278edp-34;
  // The minimax polynomial of R(t^2) / t^2.
  static constexpr double p[] = {0x1.5555555555592p-1, 0x1.999999997fd7ap-2, 0x1.24924941f4e05p-2, 0x1.c71c520615de1p-3,
                                 0x1.74663fa07a006p-3, 0x1.39a1a70c46460p-3, 0x1.2f0634596e756p-3};
};

struct IsNotAboveZero {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v) const {
    return hn::Le(v, hn::Zero(d));
  }
};

/// The status of a row of logarithms is that of its last chunk; chunks are 256 elements long and counted from the row's
/// start. In a chunk a number below zero goes before a zero.
inline VemiStatus lnStatus(const Vemi32f* row, ptrdiff_t len) {
  const ptrdiff_t first = (len - 1) / 256 * 256;
  const auto lastChunkHas = [=](auto test) { return anyElement(len - first, test, row + first); };
  if (!lastChunkHas(IsNotAboveZero())) return vemiOk;
  return lastChunkHas(IsNegative()) ? vemiWarnLnNegative : vemiWarnLnZero;
}

}  // namespace vemi
