// vemiDiv, vemiDivC of complex elements: x / d = (d.re x.re + d.im x.im, d.re x.im - d.im x.re) / (d.re^2 + d.im^2).
// vemiDiv divides its second source by its first; a divisor of zero warns.
//   16sc  in double precision, rounded to nearest in each step: vemi/arith.h defines the order of the steps
//   32sc  the exact quotient, rounded once
//   32fc  in single precision with the approximate reciprocal, improved by one Newton step
// Checks: null, size, step, then the constant; vemiDivC_32fc looks at its constant first.

#include <algorithm>
#include <bit>

#include "arith/complex_arithmetic.h"
#include "arith/quotient.h"
#include "core/element.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/numbers.h"
#include "core/rounding.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

// ---- 16sc ---------------------------------------------------------------------------------------------------------

/// To an integer of 16 bits: out of range to the limit, else nearestBelowSum of v + 32768.5, and 32768 less.
template <class DI, class V>
HWY_INLINE hn::Vec<DI> roundedTo16(DI di, V v) {
  const hn::DFromV<V> d;
  const V within = hn::Min(hn::Max(v, hn::Set(d, -32768)), hn::Set(d, 32767));
  return hn::Sub(nearestBelowSum(di, hn::Add(within, hn::Set(d, 32768.5))), hn::Set(di, 32768));
}

struct Quotient16sc {
  double scale;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x, V divisor) const {
    const hn::Half<D> dHalf;
    const auto lower = half(dHalf, hn::LowerHalf(dHalf, x), hn::LowerHalf(dHalf, divisor));
    const auto upper = half(dHalf, hn::UpperHalf(dHalf, x), hn::UpperHalf(dHalf, divisor));
    const V both = hn::Combine(d, upper, lower);
    return hn::IfThenZeroElse(hn::Eq(divisor, hn::Zero(d)), both);
  }

 private:
  /// As many elements as a vector has doubles. The scale is a power of two, so where it is multiplied is all one.
  template <class DHalf, class V>
  HWY_INLINE V half(DHalf d, V x, V divisor) const {
    const hn::Rebind<double, DHalf> dd;
    const auto re = [&](V v) HWY_ATTR { return hn::PromoteTo(dd, hn::ShiftRight<16>(hn::ShiftLeft<16>(v))); };
    const auto im = [&](V v) HWY_ATTR { return hn::PromoteTo(dd, hn::ShiftRight<16>(v)); };
    const auto xRe = re(x), xIm = im(x), dRe = re(divisor), dIm = im(divisor);
    const auto den = hn::Add(hn::Mul(dRe, dRe), hn::Mul(dIm, dIm));
    const auto reciprocal = hn::Div(hn::Set(dd, 1), den);
    const auto part = [&](auto numerator) HWY_ATTR {
      return roundedTo16(d, hn::Mul(hn::Mul(numerator, reciprocal), hn::Set(dd, scale)));
    };
    const V resultRe = part(hn::Add(hn::Mul(dRe, xRe), hn::Mul(dIm, xIm)));
    const V resultIm = part(hn::Sub(hn::Mul(dRe, xIm), hn::Mul(dIm, xRe)));
    return hn::Or(hn::And(resultRe, hn::Set(d, 0xffff)), hn::ShiftLeft<16>(resultIm));
  }
};

// ---- 32sc ---------------------------------------------------------------------------------------------------------

/// A sum of two products of 32-bit values: its sign, and its magnitude of up to 2^63.
struct Sum64 {
  bool isNegative;
  uint64_t magnitude;
};

/// Only +2^63 wraps, and only to the lowest value, which no sum has otherwise.
Sum64 sumOfProducts(int64_t a, int64_t b) {
  const uint64_t sum = static_cast<uint64_t>(a) + static_cast<uint64_t>(b);
  const bool isNegative = sum > uint64_t{1} << 63;
  return {isNegative, isNegative ? 0 - sum : sum};
}

/// numerator / (den 2^scaleFactor) to nearest, ties to even, saturated. The divisor being 1 at least in magnitude, the
/// unscaled quotient is below 2^32.
Vemi32s scaledQuotient(Sum64 numerator, uint64_t den, int scaleFactor) {
  constexpr uint64_t beyond = uint64_t{1} << 33;  // of the range at any further scale
  uint64_t quotient = numerator.magnitude / den;
  uint64_t rest = numerator.magnitude % den;
  // Towards a negative scale factor, by as many bits as the rest has room for: one at least, den being 2^63 at most.
  for (int left = -std::clamp(scaleFactor, -128, 0); left > 0 && quotient < beyond;) {
    const int shift = std::min({left, std::countl_zero(rest), 30});
    rest <<= shift;
    quotient = (quotient << shift) + rest / den;
    rest %= den;
    left -= shift;
  }
  bool up;
  if (scaleFactor > 0) {
    const int shift = std::min(scaleFactor, 40);
    const uint64_t tie = uint64_t{1} << (shift - 1);
    const uint64_t below = quotient & (2 * tie - 1);
    quotient >>= shift;
    up = below > tie || (below == tie && (rest != 0 || quotient % 2 != 0));
  } else {
    const uint64_t above = den - rest;
    up = rest > above || (rest == above && quotient % 2 != 0);
  }
  const auto magnitude = static_cast<int64_t>(quotient + up);
  return saturate<Vemi32s>(numerator.isNegative ? -magnitude : magnitude);
}

Vemi32sc quotient32sc(Vemi32sc x, Vemi32sc d, int scaleFactor) {
  const auto product = [](int64_t a, int64_t b) { return a * b; };
  const uint64_t den = sumOfProducts(product(d.re, d.re), product(d.im, d.im)).magnitude;
  if (den == 0) return {0, 0};
  return {scaledQuotient(sumOfProducts(product(d.re, x.re), product(d.im, x.im)), den, scaleFactor),
          scaledQuotient(sumOfProducts(product(d.re, x.im), -product(d.im, x.re)), den, scaleFactor)};
}

/// A region, with divisorOf(row, index of the element, channel).
template <class L, class DivisorOf>
void quotients32sc(VemiSize roiSize, int scaleFactor, const DivisorOf& divisorOf, Image<const Vemi32sc> src,
                   Image<Vemi32sc> dst) {
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) {
    for (ptrdiff_t x = 0; x < roiSize.width; ++x) {
      for (int channel = 0; channel < L::channels; ++channel) {
        const ptrdiff_t i = x * L::elements + channel;
        setElement(dst.row(y) + i, quotient32sc(elementOf(src.row(y) + i), divisorOf(y, i, channel), scaleFactor));
      }
    }
  }
}

// ---- 32fc ---------------------------------------------------------------------------------------------------------

/// den = d.re^2 + d.im^2 in both halves of each lane.
template <class DF, class V>
HWY_INLINE V denominators(DF, V divisor) {
  const V squares = hn::Mul(divisor, divisor);
  return hn::Add(hn::DupEven(squares), hn::DupOdd(squares));
}

/// Also where the squares of a divisor have vanished.
struct HasNoDenominator {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V, V divisor) const {
    const hn::Repartition<float, D> df;
    return hn::MaskFromVec(
        hn::BitCast(d, hn::VecFromMask(df, hn::Eq(denominators(df, hn::BitCast(df, divisor)), hn::Zero(df)))));
  }
};

struct Quotient32fc {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x, V divisor) const {
    const hn::Repartition<float, D> df;
    const auto xf = hn::BitCast(df, x), divisorF = hn::BitCast(df, divisor);
    const auto ofReal = hn::Mul(hn::DupEven(divisorF), xf);                       // d.re x.re, d.re x.im
    const auto ofImaginary = hn::Mul(hn::DupOdd(divisorF), hn::Shuffle2301(xf));  // d.im x.im, d.im x.re
    const auto numerators = hn::OddEven(hn::Sub(ofReal, ofImaginary), hn::Add(ofReal, ofImaginary));
    const auto den = denominators(df, divisorF);
    const auto r0 = approximateReciprocal(df, den);
    const auto r = hn::Mul(hn::Sub(hn::Set(df, 2), hn::Mul(den, r0)), r0);
    const auto nan = hn::BitCast(df, hn::Set(hn::RebindToUnsigned<decltype(df)>(), 0xffc00000u));
    return hn::BitCast(d, hn::Mul(numerators, hn::IfThenElse(hn::Eq(den, hn::Zero(df)), nan, r)));
  }
};

// ---- Regions ------------------------------------------------------------------------------------------------------

template <class L, class C, class Op, class Test>
VemiStatus divideComplex(VemiSize roiSize, const Op& op, const Test& test, Image<C> dst, Image<const C> x,
                         Image<const C> divisor) {
  const bool byZero = mapRegionTested<L>(roiSize, eachVector(op), inWorkedChannels<L>(test), inLanes(dst), inLanes(x),
                                         inLanes(divisor));
  return byZero ? vemiWarnDivByZero : vemiOk;
}

template <class L>
VemiStatus divide16sc(Image<const Vemi16sc> src1, Image<const Vemi16sc> src2, Image<Vemi16sc> dst, VemiSize roiSize,
                      int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  const Quotient16sc quotient = {quotientScale<double>(scaleFactor)};
  return roundingToNearest([&] { return divideComplex<L>(roiSize, quotient, DividesByZero(), dst, src2, src1); });
}

template <class L>
VemiStatus divide32sc(Image<const Vemi32sc> src1, Image<const Vemi32sc> src2, Image<Vemi32sc> dst, VemiSize roiSize,
                      int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  VemiStatus status = vemiOk;
  const auto divisorOf = [&](ptrdiff_t y, ptrdiff_t i, int) {
    const Vemi32sc divisor = elementOf(src1.row(y) + i);
    if (divisor.re == 0 && divisor.im == 0) status = vemiWarnDivByZero;
    return divisor;
  };
  quotients32sc<L>(roiSize, scaleFactor, divisorOf, src2, dst);
  return status;
}

template <class L>
VemiStatus divide32fc(Image<const Vemi32fc> src1, Image<const Vemi32fc> src2, Image<Vemi32fc> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  return divideComplex<L>(roiSize, Quotient32fc(), HasNoDenominator(), dst, src2, src1);
}

/// A constant of zero is refused, and one zero among several refuses the call. NaNs in both parts count as zero.
template <class L, class C>
VemiStatus checkConstants(const C* value) {
  for (int channel = 0; channel < L::channels; ++channel) {
    const auto isNonzero = [](auto part) { return part < 0 || part > 0; };
    if (!isNonzero(value[channel].re) && !isNonzero(value[channel].im)) return vemiErrDivByZero;
  }
  return vemiOk;
}

template <class L>
VemiStatus divide16scC(Image<const Vemi16sc> src, const Vemi16sc* value, Image<Vemi16sc> dst, VemiSize roiSize,
                       int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  if (const VemiStatus bad = checkConstants<L>(value)) return bad;
  const Quotient16sc quotient = {quotientScale<double>(scaleFactor)};
  return roundingToNearest([&] { return mapComplexC<L>(roiSize, quotient, value, dst, src); });
}

template <class L>
VemiStatus divide32scC(Image<const Vemi32sc> src, const Vemi32sc* value, Image<Vemi32sc> dst, VemiSize roiSize,
                       int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  if (const VemiStatus bad = checkConstants<L>(value)) return bad;
  const auto divisorOf = [&](ptrdiff_t, ptrdiff_t, int channel) { return value[channel]; };
  quotients32sc<L>(roiSize, scaleFactor, divisorOf, src, dst);
  return vemiOk;
}

/// The constant is tested ahead of the rest, which an array of constants must be there for. It becomes its reciprocal.
/// Where the squares of one have vanished nothing is written, which forms with several constants report.
template <class L>
VemiStatus divide32fcC(Image<const Vemi32fc> src, const Vemi32fc* value, Image<Vemi32fc> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkNull(value)) return bad;
  if (const VemiStatus bad = checkConstants<L>(value)) return bad;
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  Vemi32fc reciprocal[L::channels];
  for (int channel = 0; channel < L::channels; ++channel) {
    const auto [re, im] = value[channel];
    const float den = re * re + im * im;
    if (den == 0.0f) return L::channels == 1 ? vemiOk : vemiErrDivByZero;
    const float t = 1.0f / den;
    reciprocal[channel] = {re * t, (0.0f - im) * t};
  }
  return mapComplexC<L>(roiSize, ComplexProduct(), reciprocal, dst, src);
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiDiv_16sc_C1RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), divide16sc<C1>)
VEMI_DEFINE(vemiDiv_16sc_C3RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), divide16sc<C3>)
VEMI_DEFINE(vemiDiv_16sc_AC4RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), divide16sc<AC4>)
VEMI_DEFINE(vemiDiv_16sc_C1IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), divide16sc<C1>)
VEMI_DEFINE(vemiDiv_16sc_C3IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), divide16sc<C3>)
VEMI_DEFINE(vemiDiv_16sc_AC4IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), divide16sc<AC4>)

VEMI_DEFINE(vemiDiv_32sc_C1RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), divide32sc<C1>)
VEMI_DEFINE(vemiDiv_32sc_C3RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), divide32sc<C3>)
VEMI_DEFINE(vemiDiv_32sc_AC4RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), divide32sc<AC4>)
VEMI_DEFINE(vemiDiv_32sc_C1IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), divide32sc<C1>)
VEMI_DEFINE(vemiDiv_32sc_C3IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), divide32sc<C3>)
VEMI_DEFINE(vemiDiv_32sc_AC4IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), divide32sc<AC4>)

VEMI_DEFINE(vemiDiv_32fc_C1R, VEMI_2SRC_DST(Vemi32fc), divide32fc<C1>)
VEMI_DEFINE(vemiDiv_32fc_C3R, VEMI_2SRC_DST(Vemi32fc), divide32fc<C3>)
VEMI_DEFINE(vemiDiv_32fc_AC4R, VEMI_2SRC_DST(Vemi32fc), divide32fc<AC4>)
VEMI_DEFINE(vemiDiv_32fc_C1IR, VEMI_SRC_SRCDST(Vemi32fc), divide32fc<C1>)
VEMI_DEFINE(vemiDiv_32fc_C3IR, VEMI_SRC_SRCDST(Vemi32fc), divide32fc<C3>)
VEMI_DEFINE(vemiDiv_32fc_AC4IR, VEMI_SRC_SRCDST(Vemi32fc), divide32fc<AC4>)

VEMI_DEFINE(vemiDivC_16sc_C1RSfs, VEMI_SRC_VALUE_DST(Vemi16sc, VEMI_SFS), divide16scC<C1>)
VEMI_DEFINE(vemiDivC_16sc_C3RSfs, VEMI_SRC_VALUES_DST(Vemi16sc, VEMI_SFS), divide16scC<C3>)
VEMI_DEFINE(vemiDivC_16sc_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi16sc, VEMI_SFS), divide16scC<AC4>)
VEMI_DEFINE(vemiDivC_16sc_C1IRSfs, VEMI_VALUE_SRCDST(Vemi16sc, VEMI_SFS), divide16scC<C1>)
VEMI_DEFINE(vemiDivC_16sc_C3IRSfs, VEMI_VALUES_SRCDST(Vemi16sc, VEMI_SFS), divide16scC<C3>)
VEMI_DEFINE(vemiDivC_16sc_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi16sc, VEMI_SFS), divide16scC<AC4>)

VEMI_DEFINE(vemiDivC_32sc_C1RSfs, VEMI_SRC_VALUE_DST(Vemi32sc, VEMI_SFS), divide32scC<C1>)
VEMI_DEFINE(vemiDivC_32sc_C3RSfs, VEMI_SRC_VALUES_DST(Vemi32sc, VEMI_SFS), divide32scC<C3>)
VEMI_DEFINE(vemiDivC_32sc_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi32sc, VEMI_SFS), divide32scC<AC4>)
VEMI_DEFINE(vemiDivC_32sc_C1IRSfs, VEMI_VALUE_SRCDST(Vemi32sc, VEMI_SFS), divide32scC<C1>)
VEMI_DEFINE(vemiDivC_32sc_C3IRSfs, VEMI_VALUES_SRCDST(Vemi32sc, VEMI_SFS), divide32scC<C3>)
VEMI_DEFINE(vemiDivC_32sc_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi32sc, VEMI_SFS), divide32scC<AC4>)

VEMI_DEFINE(vemiDivC_32fc_C1R, VEMI_SRC_VALUE_DST(Vemi32fc), divide32fcC<C1>)
VEMI_DEFINE(vemiDivC_32fc_C3R, VEMI_SRC_VALUES_DST(Vemi32fc), divide32fcC<C3>)
VEMI_DEFINE(vemiDivC_32fc_AC4R, VEMI_SRC_VALUES_DST(Vemi32fc), divide32fcC<AC4>)
VEMI_DEFINE(vemiDivC_32fc_C1IR, VEMI_VALUE_SRCDST(Vemi32fc), divide32fcC<C1>)
VEMI_DEFINE(vemiDivC_32fc_C3IR, VEMI_VALUES_SRCDST(Vemi32fc), divide32fcC<C3>)
VEMI_DEFINE(vemiDivC_32fc_AC4IR, VEMI_VALUES_SRCDST(Vemi32fc), divide32fcC<AC4>)
